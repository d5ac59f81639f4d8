// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets/QWidget>

class QAction;
class QHBoxLayout;

/*! The strip of buttons below the photograph. */
class CPhotoBar final : public QWidget
{
    Q_OBJECT

public:
    explicit CPhotoBar(QWidget *parent = nullptr);

    /*!
        Adds a button that gives the command \a action. Its images are those files named \a image with "default",
        "hover" and "onpressed" in place of "%1".
    */
    void addCommand(QAction *action, const QString &image);

    /*! Leaves some room before the next button. */
    void addGap();

    /*! Shows a button under the mouse as such: Qt does not ask for that look by itself. */
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    QHBoxLayout *m_buttons;
};
