// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "PresetBrowser.h"

#include "WindowLook.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QSignalBlocker>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr QSize firstSize(900, 680);
constexpr int listWidth = 340;
constexpr int tagColumns = 2;
constexpr int infoMargin = 16;

/*! A tag has an English name in the data. One that is not known here is shown by it. */
QString tagLabel(const QString &tag)
{
    static const QMap<QString, const char *> names{
        {u"Film"_qs, QT_TRANSLATE_NOOP("CPresetBrowser", "Film")},
        {u"Color"_qs, QT_TRANSLATE_NOOP("CPresetBrowser", "Color")},
        {u"TimeMachine"_qs, QT_TRANSLATE_NOOP("CPresetBrowser", "Time machine")},
        {u"B&W"_qs, QT_TRANSLATE_NOOP("CPresetBrowser", "Black and white")},
        {u"Negative"_qs, QT_TRANSLATE_NOOP("CPresetBrowser", "Negative")},
        {u"Designer"_qs, QT_TRANSLATE_NOOP("CPresetBrowser", "Designer")},
        {u"Slide"_qs, QT_TRANSLATE_NOOP("CPresetBrowser", "Slide")},
        {u"Digital"_qs, QT_TRANSLATE_NOOP("CPresetBrowser", "Digital")},
        {u"Toned"_qs, QT_TRANSLATE_NOOP("CPresetBrowser", "Toned")},
        {u"Vignette"_qs, QT_TRANSLATE_NOOP("CPresetBrowser", "Vignette")},
        {u"Grain"_qs, QT_TRANSLATE_NOOP("CPresetBrowser", "Grain")},
        {u"Cinematic"_qs, QT_TRANSLATE_NOOP("CPresetBrowser", "Cinematic")},
        {u"Frame"_qs, QT_TRANSLATE_NOOP("CPresetBrowser", "Frame")},
    };
    const char *name = names.value(tag);
    return name == nullptr ? tag : QCoreApplication::translate("CPresetBrowser", name);
}

QString tagLabels(const QStringList &tags)
{
    QStringList labels;
    for (const QString &tag : tags) {
        labels.append(tagLabel(tag));
    }
    return labels.join(u", "_qs);
}

} // namespace

CPresetBrowser::CPresetBrowser(std::shared_ptr<const CPresetLibrary> library, QWidget *parent)
    : QDialog(parent)
    , m_library(std::move(library))
    , m_search(new QLineEdit)
    , m_expert(new QCheckBox)
    , m_list(new QListWidget)
    , m_count(new QLabel)
    , m_title(new QLabel)
    , m_text(new QTextBrowser)
{
    auto *layout = new QHBoxLayout(this);
    auto *filters = new QVBoxLayout;
    layout->addLayout(filters);
    addFilters(filters);

    auto *panel = new QWidget;
    panel->setObjectName(u"presetInfoPanel"_qs); // the sheets know it by this name
    panel->setAttribute(Qt::WA_StyledBackground);
    auto *info = new QVBoxLayout(panel);
    info->setContentsMargins(infoMargin, infoMargin, infoMargin, infoMargin);
    layout->addWidget(panel, 1);
    addInfo(info);

    putOnWindowLook(*this);
    resize(firstSize);
    retranslate();
}

void CPresetBrowser::addFilters(QVBoxLayout *column)
{
    m_search->setObjectName(u"presetSearch"_qs);
    m_search->setClearButtonEnabled(true);
    column->addWidget(m_search);
    connect(m_search, &QLineEdit::textChanged, this, &CPresetBrowser::fillList);

    auto *grid = new QGridLayout;
    column->addLayout(grid);
    for (const auto &[tag, count] : m_library->tagCounts()) {
        auto *box = new QCheckBox;
        box->setObjectName(u"tag "_qs + tag);
        connect(box, &QCheckBox::toggled, this, &CPresetBrowser::fillList);
        const int place = int(m_tags.size());
        grid->addWidget(box, place / tagColumns, place % tagColumns);
        m_tags.append({tag, box});
    }
    m_expert->setObjectName(u"expert"_qs);
    connect(m_expert, &QCheckBox::toggled, this, &CPresetBrowser::labelTags);
    connect(m_expert, &QCheckBox::toggled, this, &CPresetBrowser::fillList);
    column->addWidget(m_expert);

    m_list->setObjectName(u"presetFilmStrip"_qs);
    m_list->setFixedWidth(listWidth);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // a long name ends in dots
    connect(m_list, &QListWidget::currentItemChanged, this, &CPresetBrowser::showChosen);
    column->addWidget(m_list, 1);
    m_count->setObjectName(u"presetCount"_qs);
    column->addWidget(m_count);
}

void CPresetBrowser::addInfo(QVBoxLayout *column)
{
    m_title->setObjectName(u"presetInfoTitle"_qs);
    m_title->setTextFormat(Qt::PlainText);
    m_title->setWordWrap(true);
    column->addWidget(m_title);
    m_text->setObjectName(u"presetInfoText"_qs);
    m_text->setOpenLinks(false); // and nothing is fetched
    column->addWidget(m_text, 1);
}

void CPresetBrowser::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void CPresetBrowser::retranslate()
{
    setWindowTitle(tr("Presets"));
    m_search->setPlaceholderText(tr("Search"));
    m_expert->setText(tr("Also presets of the expert mode"));
    m_search->setAccessibleName(m_search->placeholderText());
    m_list->setAccessibleName(windowTitle());
    labelTags();
    fillList();
}

/*! With the counts of what is offered. */
void CPresetBrowser::labelTags()
{
    const QList<Preset> &presets = m_library->presets();
    for (const auto &tag : m_tags) {
        const auto count = std::count_if(presets.cbegin(), presets.cend(), [this, &tag](const Preset &preset) {
            return isOffered(preset) && preset.tags.contains(tag.first);
        });
        tag.second->setText(tr("%1 (%2)").arg(tagLabel(tag.first), QString::number(count)).replace(u'&', u"&&"_qs));
    }
}

/*! The chosen preset stays the chosen one while it is listed. */
void CPresetBrowser::fillList()
{
    const QString language = spokenLanguage();
    const QString chosen = chosenId();
    QList<QPair<QString, QString>> rows;
    for (const Preset &preset : m_library->presets()) {
        const QString name = m_library->displayName(preset.id, language);
        if (isWanted(preset, name)) {
            rows.append({name, preset.id});
        }
    }
    std::stable_sort(rows.begin(), rows.end(), [](const auto &left, const auto &right) {
        return left.first.localeAwareCompare(right.first) < 0;
    });
    {
        const QSignalBlocker blocker(m_list);
        m_list->clear();
        for (const auto &[name, id] : rows) {
            auto *item = new QListWidgetItem(name, m_list); // the list owns it
            item->setData(Qt::UserRole, id);
        }
        if (!selectRow(chosen)) {
            m_list->setCurrentRow(0);
        }
    }
    m_count->setText(tr("Presets shown: %1").arg(rows.size()));
    showChosen();
}

bool CPresetBrowser::isOffered(const Preset &preset) const
{
    return preset.isLook() && (!preset.isExpert || m_expert->isChecked());
}

bool CPresetBrowser::isWanted(const Preset &preset, const QString &name) const
{
    if (!isOffered(preset)) {
        return false;
    }
    const QString wanted = m_search->text().trimmed();
    if (!name.contains(wanted, Qt::CaseInsensitive) && !preset.id.contains(wanted, Qt::CaseInsensitive)) {
        return false;
    }
    return std::all_of(m_tags.cbegin(), m_tags.cend(), [&preset](const auto &tag) {
        return !tag.second->isChecked() || preset.tags.contains(tag.first);
    });
}

void CPresetBrowser::showChosen()
{
    const Preset *preset = m_library->preset(chosenId());
    const QString language = spokenLanguage();
    m_title->setText(preset == nullptr ? QString() : m_library->displayName(preset->id, language));
    m_text->setAccessibleName(m_title->text()); // not as its buddy, which has a shortcut where a name has "&"
    if (preset == nullptr) {
        m_text->setPlainText(m_library->error());
        return;
    }
    m_text->setHtml(textOf(*preset, language));
}

/*! HTML. A preset without a note shows what it is made of. */
QString CPresetBrowser::textOf(const Preset &preset, const QString &language) const
{
    const PresetNote *note = m_library->note(preset.id);
    if (note == nullptr) {
        const QString text
            = u"<p>%1</p><p>%2</p>"_qs.arg(tr("Tags: %1").arg(tagLabels(preset.tags)).toHtmlEscaped(),
                                           tr("Parameters: %1").arg(preset.params.size()).toHtmlEscaped());
        const QString error = m_library->error().toHtmlEscaped(); // of the notes
        return error.isEmpty() ? text : QString(text + u"<p>" + error + u"</p>");
    }
    const QString title = textIn(note->titles, language);
    const QString description = textIn(note->descriptions, language);
    if (title.isEmpty() || title == m_library->displayName(preset.id, language)) {
        return description; // the name stands above already
    }
    return u"<h3>%1</h3>%2"_qs.arg(title.toHtmlEscaped(), description);
}

bool CPresetBrowser::showPreset(const QString &id)
{
    const Preset *preset = m_library->preset(id);
    if (preset == nullptr || !preset->isLook()) {
        return false;
    }
    if (preset->isExpert) {
        m_expert->setChecked(true);
    }
    if (!selectRow(id)) {
        dropFilters();
        selectRow(id);
    }
    return true;
}

void CPresetBrowser::dropFilters()
{
    m_search->clear();
    for (const auto &[tag, box] : m_tags) {
        box->setChecked(false);
    }
}

bool CPresetBrowser::selectRow(const QString &id)
{
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->data(Qt::UserRole).toString() == id) {
            m_list->setCurrentRow(row);
            m_list->scrollToItem(m_list->item(row), QListWidget::PositionAtCenter);
            return true;
        }
    }
    return false;
}

QString CPresetBrowser::chosenId() const
{
    const QListWidgetItem *item = m_list->currentItem();
    return item == nullptr ? QString() : item->data(Qt::UserRole).toString();
}
