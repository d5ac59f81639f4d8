// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets/QMenu>

class QActionGroup;

/*! The languages of the build. The chosen one is marked; it is spoken from the next start on. */
class CLanguageMenu final : public QMenu
{
    Q_OBJECT

public:
    explicit CLanguageMenu(QWidget *parent = nullptr);

Q_SIGNALS:
    /*! \a language, as its speakers call it, was chosen for the next start. */
    void languageChosen(const QString &language);

public Q_SLOTS:
    /*! The command, called by its name. */
    void useWanted();

private:
    void addLanguage(const QString &name, int row);
    void markChosen();

    QActionGroup *m_languages;
    int m_wanted = -1; // the row of the language that was picked last
};
