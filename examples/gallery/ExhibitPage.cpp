// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ExhibitPage.h"

#include "DialogPicture.h"

#include "utilsDll/look/SharedUtils.h"

#include <QtCore/QDir>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

using namespace ZYX_zglv6;

namespace {

constexpr int columnCount = 3;

QLabel *newCaption(const QString &text)
{
    auto *caption = new QLabel(text);
    caption->setObjectName(u"galleryCaption"_qs);
    return caption;
}

} // namespace

CExhibitPage::CExhibitPage(const ExhibitSection &section, QWidget *parent)
    : QScrollArea(parent)
    , m_exhibits(section.exhibits)
{
    setObjectName(u"gallery"_qs);
    auto *page = new QWidget;
    page->setObjectName(u"galleryPage"_qs);
    m_grid = new QGridLayout(page);
    addHeading(section.title);
    for (qsizetype i = 0; i < m_exhibits.size(); ++i) {
        const int row = 1 + 2 * int(i / columnCount);
        const int column = int(i % columnCount);
        m_specimens.append(newSpecimen(m_exhibits.at(i)));
        m_grid->addWidget(m_specimens.last(), row, column, Qt::AlignLeft | Qt::AlignBottom);
        m_grid->addWidget(newCaption(m_exhibits.at(i).title), row + 1, column, Qt::AlignLeft | Qt::AlignTop);
    }
    m_grid->setColumnStretch(m_grid->columnCount(), 1);
    m_grid->setRowStretch(m_grid->rowCount(), 1);
    setWidget(page);
    setWidgetResizable(true);
    setCustomStyleSheet(this, QssLoadBaseSheets, u":/gallery/gallery.qss"_qs);
}

PictureCounts CExhibitPage::writePictures(const QString &folder, PictureName name, const QString &only)
{
    PictureCounts counts;
    for (qsizetype i = 0; i < m_exhibits.size(); ++i) {
        name.exhibit = m_exhibits.at(i).name;
        if (!m_exhibits.at(i).hasPicture || !name.exhibit.startsWith(only)) {
            continue;
        }
        counts.add(pictureOf(i).save(QDir(folder).filePath(name.fileName())));
    }
    return counts;
}

void CExhibitPage::addHeading(const QString &text)
{
    auto *heading = new QLabel(text);
    heading->setObjectName(u"galleryHeading"_qs);
    m_grid->addWidget(heading, 0, 0, 1, columnCount);
}

QWidget *CExhibitPage::newSpecimen(const Exhibit &exhibit)
{
    if (exhibit.make) {
        return exhibit.make().release();
    }
    auto *button = new QPushButton(tr("Open"));
    button->setAccessibleName(exhibit.title);
    connect(button, &QPushButton::clicked, this, [this, open = exhibit.open] { open(this); });
    return button;
}

QPixmap CExhibitPage::pictureOf(qsizetype index)
{
    const Exhibit &exhibit = m_exhibits.at(index);
    return exhibit.make ? m_specimens.at(index)->grab() : pictureOfDialog([&] { exhibit.open(this); });
}
