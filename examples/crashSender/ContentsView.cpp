// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ContentsView.h"

#include <QtCore/QLocale>
#include <QtCore/QSignalBlocker>
#include <QtGui/QFontDatabase>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QTreeWidget>

namespace {

enum Column { NameColumn, SizeColumn, ColumnCount };

constexpr int listWidth = 310;
constexpr int previewWidth = 580; // a hexadecimal line
constexpr QLatin1StringView firstShown("report.xml");

QTreeWidgetItem *itemOf(const QFileInfo &file, const QString &name)
{
    auto *item = new QTreeWidgetItem({name, QLocale().formattedDataSize(file.size())});
    item->setTextAlignment(SizeColumn, Qt::AlignRight | Qt::AlignVCenter);
    item->setToolTip(NameColumn, name);
    item->setData(NameColumn, Qt::UserRole, file.absoluteFilePath());
    return item;
}

} // namespace

CContentsView::CContentsView(QWidget *parent)
    : QSplitter(Qt::Horizontal, parent)
    , m_list(new QTreeWidget)
    , m_preview(new QPlainTextEdit)
{
    m_list->setObjectName(u"fileList"_qs);
    m_list->setAccessibleName(tr("Files of the report"));
    m_list->setColumnCount(ColumnCount);
    m_list->setHeaderLabels({tr("File"), tr("Size")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setTextElideMode(Qt::ElideMiddle); // the endings tell the files apart
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    m_list->header()->setSectionResizeMode(SizeColumn, QHeaderView::ResizeToContents);
    m_list->headerItem()->setTextAlignment(SizeColumn, Qt::AlignRight | Qt::AlignVCenter);

    m_preview->setObjectName(u"preview"_qs);
    m_preview->setAccessibleName(tr("Content of the selected file"));
    m_preview->setReadOnly(true);
    m_preview->setTabChangesFocus(true);
    m_preview->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_preview->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));

    addWidget(m_list);
    addWidget(m_preview);
    setChildrenCollapsible(false);
    setHandleWidth(10);
    setSizes({listWidth, previewWidth});
    setStretchFactor(1, 1);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &CContentsView::previewCurrent);
}

void CContentsView::showArchive(const QString &archive)
{
    const QString selected
        = m_list->currentItem() != nullptr ? m_list->currentItem()->text(NameColumn) : QString(firstShown);
    m_contents = std::make_unique<CReportContents>(archive);
    {
        const QSignalBlocker blocker(m_list);
        m_list->clear();
        for (const QFileInfo &file : m_contents->files()) {
            m_list->addTopLevelItem(itemOf(file, m_contents->nameOf(file)));
        }
        const QList<QTreeWidgetItem *> found = m_list->findItems(selected, Qt::MatchExactly, NameColumn);
        m_list->setCurrentItem(found.isEmpty() ? m_list->topLevelItem(0) : found.front());
    }
    previewCurrent();
}

QTreeWidget *CContentsView::list() const
{
    return m_list;
}

QPlainTextEdit *CContentsView::preview() const
{
    return m_preview;
}

void CContentsView::previewCurrent()
{
    const QTreeWidgetItem *item = m_list->currentItem();
    m_preview->setPlainText(item != nullptr ? CReportContents::preview(item->data(NameColumn, Qt::UserRole).toString())
                                            : tr("What the archive holds can't be shown."));
}
