// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "SheetPage.h"

#include "Selectors.h"
#include "Specimens.h"

#include "utilsDll/look/SharedUtils.h"

#include <QtCore/QFile>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolTip>

#include <algorithm>
#include <array>

using namespace ZYX_zglv6;

namespace {

struct Column
{
    Appearance appearance;
    QLatin1StringView state; // empty for all controls
};

constexpr std::array columns{
    Column{Appearance::Default, {}},
    Column{Appearance::Hover, QLatin1StringView("hover")},
    Column{Appearance::Pressed, QLatin1StringView("pressed")},
    Column{Appearance::Checked, QLatin1StringView("checked")},
    Column{Appearance::Unchecked, QLatin1StringView("unchecked")},
    Column{Appearance::Disabled, {}},
};
constexpr QSize listSize(160, 80);

QString contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/*! Those of the sheet's own window come with an option, as its window would ask for them. */
QFlags<QssLoadOption> optionsFor(const QString &sheetPath)
{
    if (sheetPath.endsWith(u"/crash_sender.qss")) {
        return QssLoadCrashSender;
    }
    return sheetPath.endsWith(u"/printing.qss") ? QFlags(QssLoadBaseSheets) | QssLoadPrinting
                                                : QFlags(QssLoadBaseSheets);
}

QPixmap listOf(const QComboBox *combo)
{
    QWidget *list = combo->view()->window();
    list->resize(listSize);
    return list->grab();
}

QPixmap toolTipOf(QWidget *widget)
{
    QToolTip::showText(QPoint(0, 0), widget->toolTip(), widget);
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto tip
        = std::find_if(windows.cbegin(), windows.cend(), [](QWidget *window) { return window->inherits("QTipLabel"); });
    const QPixmap picture = tip == windows.cend() ? QPixmap() : (*tip)->grab();
    QToolTip::hideText();
    return picture;
}

/*! What a specimen opens; null if that is nothing. */
QPixmap popUpOf(QWidget *specimen)
{
    const auto *combo = qobject_cast<QComboBox *>(specimen);
    combo = combo ? combo : specimen->findChild<QComboBox *>();
    if (combo) {
        return listOf(combo);
    }
    return specimen->toolTip().isEmpty() ? QPixmap() : toolTipOf(specimen);
}

} // namespace

CSheetPage::CSheetPage(const QString &sheetPath, QWidget *parent)
    : QScrollArea(parent)
{
    setObjectName(u"gallery"_qs);
    auto *page = new QWidget;
    page->setObjectName(u"galleryPage"_qs);
    m_grid = new QGridLayout(page);
    addHeading(sheetPath);
    addRows(contentOf(sheetPath));
    m_grid->setColumnStretch(m_grid->columnCount(), 1);
    m_grid->setRowStretch(m_grid->rowCount(), 1);
    setWidget(page);
    setCustomStyleSheet(this, optionsFor(sheetPath), u":/gallery/gallery.qss"_qs);
    addPopUps();
    page->resize(page->sizeHint());
}

int CSheetPage::selectorCount() const
{
    return m_selectorCount;
}

QStringList CSheetPage::withoutSpecimen() const
{
    return m_withoutSpecimen;
}

void CSheetPage::addHeading(const QString &text)
{
    auto *heading = new QLabel(text);
    heading->setObjectName(u"galleryHeading"_qs);
    m_grid->addWidget(heading, 0, 0, 1, int(columns.size()) + 1);
}

void CSheetPage::addRows(const QString &sheet)
{
    for (const StyledControl &control : controlsOf(sheet)) {
        ++m_selectorCount;
        const int row = m_grid->rowCount();
        auto *caption = new QLabel(textOf(control.selector));
        caption->setObjectName(u"galleryCaption"_qs);
        m_grid->addWidget(caption, row, 0);
        addSpecimens(control, row);
    }
}

void CSheetPage::addSpecimens(const StyledControl &control, int row)
{
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const Column &column = columns.at(i);
        if (!column.state.isEmpty() && !control.states.contains(column.state)) {
            continue;
        }
        std::unique_ptr<QWidget> specimen = newSpecimen(control.selector, column.appearance);
        if (!specimen) {
            m_withoutSpecimen.append(textOf(control.selector));
            return;
        }
        m_grid->addWidget(specimen.release(), row, int(i) + 1, Qt::AlignLeft | Qt::AlignVCenter);
    }
}

/*! As pictures: what pops up has the look only as a window of its own. */
void CSheetPage::addPopUps()
{
    const int column = int(columns.size()) + 1;
    for (int row = 1; row < m_grid->rowCount(); ++row) {
        const QLayoutItem *item = m_grid->itemAtPosition(row, 1);
        const QPixmap picture = item ? popUpOf(item->widget()) : QPixmap();
        if (!picture.isNull()) {
            auto *label = new QLabel;
            label->setPixmap(picture);
            m_grid->addWidget(label, row, column, Qt::AlignLeft | Qt::AlignVCenter);
        }
    }
}
