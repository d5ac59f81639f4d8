// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QList>
#include <QtWidgets/QSplitter>

class CSheetPage;
class QListWidget;
class QStackedWidget;

/*! The languages, a list of the embedded sheets, and the page of the chosen one. */
class CGalleryWindow final : public QSplitter
{
    Q_OBJECT

public:
    explicit CGalleryWindow(QWidget *parent = nullptr);

    /*! In the order in which the sheets are joined. */
    QList<CSheetPage *> pages() const;

    /*! Writes each page into \a folder as "<language>-<number>-<sheet>.png". The names of those that were written. */
    QStringList writePages(const QString &folder, const QString &language) const;

Q_SIGNALS:
    /*! The user wants to see another language: a matter of another start. */
    void languageWanted(const QString &abbreviation);

private:
    QWidget *newLanguageBox();
    void addPage(const QString &name);

    QListWidget *m_list;
    QStackedWidget *m_stack;
    QList<CSheetPage *> m_pages;
    QStringList m_names;
};
