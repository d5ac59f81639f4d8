// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

#include <memory>

namespace TestSupport {

/*! What one error box showed. */
struct ErrorBox
{
    QString title;
    QString text;
    quintptr parent = 0;
    bool hasErrorIcon = false;
    qsizetype buttonCount = 0;
};

/*! Stands in for the user: while it lives, each error box of this process is read and closed with its button. */
class ErrorBoxCatcher
{
public:
    ErrorBoxCatcher();
    ~ErrorBoxCatcher();

    /*! The boxes that were closed, in their order. */
    QList<ErrorBox> boxes() const;

private:
    class Pimpl;
    const std::unique_ptr<Pimpl> pimpl;
};

} // namespace TestSupport
