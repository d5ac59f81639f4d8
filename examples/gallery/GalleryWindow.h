// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "Exhibit.h"
#include "PictureCounts.h"
#include "PictureName.h"

#include <QtCore/QList>
#include <QtWidgets/QSplitter>

class CExhibitPage;
class CSheetPage;
class QListWidget;
class QStackedWidget;

/*! The languages, a list of the kinds of exhibits and the embedded sheets, and the page of the chosen one. */
class CGalleryWindow final : public QSplitter
{
    Q_OBJECT

public:
    CGalleryWindow(const QList<ExhibitSection> &sections, bool withSheets, QWidget *parent = nullptr);

    /*! In the order in which the sheets are joined. */
    QList<CSheetPage *> sheetPages() const;

    /*!
        Writes the pages of the sheets into \a folder as "<language>-<number>-<sheet>.png", those for which "sheet-" and
        the sheet's name begin with \a only.
    */
    PictureCounts writeSheets(const QString &folder, const QString &language, const QString &only) const;

    /*! Writes a picture of each exhibit, as CExhibitPage does. Shows the window. */
    PictureCounts writeExhibits(const QString &folder, const PictureName &name, const QString &only);

Q_SIGNALS:
    /*! The user wants to see another language: a matter of another start. */
    void languageWanted(const QString &abbreviation);

private:
    QWidget *newLanguageBox();
    void addSheets();
    void addPage(const QString &name, QWidget *page);

    QListWidget *m_list;
    QStackedWidget *m_stack;
    QList<CExhibitPage *> m_exhibitPages;
    QList<CSheetPage *> m_sheetPages;
    QStringList m_sheetNames;
};
