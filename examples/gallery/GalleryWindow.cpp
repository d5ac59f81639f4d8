// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "GalleryWindow.h"

#include "ExhibitPage.h"
#include "SheetPage.h"

#include "common/Look.h"

#include "utilsDll/look/LanguageManager.h"
#include "utilsDll/look/SharedUtils.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QVBoxLayout>

using namespace ZYX_zglv6;

namespace {

constexpr QSize firstSize(1100, 780);
constexpr int listWidth = 160;

/*! In the order in which the library joins them; one that is not there, or empty, has no page. */
QStringList sheetNames()
{
    const QString language = CLanguageManager::getInstance().currentLanguageAbbrv();
    return {u"custom"_qs,      u"win"_qs,          u"menu"_qs,        u"toolBar"_qs,
            u"previewArea"_qs, u"sideBar"_qs,      u"combobox"_qs,    u"slider"_qs,
            u"tools"_qs,       u"dialogs"_qs,      u"timeMachine"_qs, u"extra-"_qs + language,
            u"essintial"_qs,   u"crash_sender"_qs, u"printing"_qs};
}

QString pathOf(const QString &name)
{
    return u":/qss/"_qs + name + u".qss";
}

} // namespace

CGalleryWindow::CGalleryWindow(const QList<ExhibitSection> &sections, bool withSheets, QWidget *parent)
    : QSplitter(parent)
    , m_list(new QListWidget)
    , m_stack(new QStackedWidget)
{
    setWindowTitle(tr("Gallery"));
    auto *side = new QWidget;
    side->setObjectName(u"galleryPage"_qs); // for the same ground
    side->setAttribute(Qt::WA_StyledBackground);
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(newLanguageBox());
    layout->addWidget(m_list);
    addWidget(side);
    addWidget(m_stack);
    setSizes({listWidth, firstSize.width() - listWidth});
    resize(firstSize);
    for (const ExhibitSection &section : sections) {
        m_exhibitPages.append(new CExhibitPage(section));
        addPage(section.title, m_exhibitPages.last());
    }
    if (withSheets) {
        addSheets();
    }
    connect(m_list, &QListWidget::currentRowChanged, m_stack, &QStackedWidget::setCurrentIndex);
    m_list->setCurrentRow(0);
    // Not the window: each page shall wear its own sheets and no others.
    setCustomStyleSheet(side, QssLoadBaseSheets, u":/gallery/gallery.qss"_qs);
}

QList<CSheetPage *> CGalleryWindow::sheetPages() const
{
    return m_sheetPages;
}

PictureCounts CGalleryWindow::writeSheets(const QString &folder, const QString &language, const QString &only) const
{
    PictureCounts counts;
    for (qsizetype i = 0; i < m_sheetPages.size(); ++i) {
        const QString kindAndName = sheetKind + m_sheetNames.at(i);
        if (!kindAndName.startsWith(only)) {
            continue;
        }
        const QString name
            = u"%1-%2-%3.png"_qs.arg(language, QString::number(i + 1).rightJustified(2, u'0'), m_sheetNames.at(i));
        counts.add(m_sheetPages.at(i)->widget()->grab().save(QDir(folder).filePath(name)));
    }
    return counts;
}

PictureCounts CGalleryWindow::writeExhibits(const QString &folder, const PictureName &name, const QString &only)
{
    show();
    PictureCounts counts;
    for (CExhibitPage *page : m_exhibitPages) {
        m_stack->setCurrentWidget(page);
        counts += page->writePictures(folder, name, only);
    }
    return counts;
}

QWidget *CGalleryWindow::newLanguageBox()
{
    CLanguageManager &languages = CLanguageManager::getInstance();
    auto *box = new QComboBox;
    box->setModel(languages.model());
    box->setCurrentIndex(languages.currentLanguageIndex());
    connect(box, &QComboBox::activated, this, [this, &languages](int row) {
        if (row != languages.currentLanguageIndex()) {
            Q_EMIT languageWanted(languages.model()->index(row, languageAbbreviationColumn).data().toString());
        }
    });
    return box;
}

void CGalleryWindow::addSheets()
{
    for (const QString &name : sheetNames()) {
        if (QFileInfo(pathOf(name)).size() > 0) {
            m_sheetNames.append(name);
            m_sheetPages.append(new CSheetPage(pathOf(name)));
            addPage(name, m_sheetPages.last());
        }
    }
}

void CGalleryWindow::addPage(const QString &name, QWidget *page)
{
    m_stack->addWidget(page);
    m_list->addItem(name);
}
