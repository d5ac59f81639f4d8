// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "TimeLine.h"

#include "PresetLibrary.h"
#include "WindowLook.h"

#include <QtCore/QEvent>
#include <QtCore/QSignalBlocker>
#include <QtCore/QUrl>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr QSize firstSize(1040, 700);
constexpr int decadeWidth = 170;
constexpr int filmWidth = 260;
constexpr QLatin1StringView linkScheme("preset");
constexpr QLatin1StringView linkForm("<a style='color:#ce7044' href='%1:%2'>%3</a>");

} // namespace

CTimeLine::CTimeLine(CFilmHistory history, std::shared_ptr<const CPresetLibrary> library, QWidget *parent)
    : QDialog(parent)
    , m_history(std::move(history))
    , m_library(std::move(library))
    , m_decades(new QListWidget)
    , m_previous(newStepButton(u"previousDecadeButton"_qs, -1))
    , m_next(newStepButton(u"nextDecadeButton"_qs, 1))
    , m_decade(new QLabel)
    , m_filmHeading(new QLabel)
    , m_films(new QListWidget)
    , m_eventHeading(new QLabel)
    , m_events(new QTextBrowser)
{
    setObjectName(u"TimeMachineDescriptionBigDialog"_qs); // the sheets know it by this name
    m_decade->setObjectName(u"decadeLabel"_qs);
    m_decade->setTextFormat(Qt::PlainText);
    auto *page = new QVBoxLayout;
    page->addWidget(m_decade);
    auto *columns = new QHBoxLayout;
    columns->addLayout(newFilmColumn());
    columns->addLayout(newEventColumn(), 1);
    page->addLayout(columns, 1);
    auto *layout = new QHBoxLayout(this);
    layout->addLayout(newDecadeColumn());
    layout->addLayout(page, 1);

    putOnWindowLook(*this);
    resize(firstSize);
    retranslate();
}

QToolButton *CTimeLine::newStepButton(const QString &name, int step)
{
    auto *button = new QToolButton;
    button->setObjectName(name);
    connect(button, &QToolButton::clicked, this, [this, step] { this->step(step); });
    return button;
}

QVBoxLayout *CTimeLine::newDecadeColumn()
{
    auto *column = new QVBoxLayout;
    column->addWidget(m_previous, 0, Qt::AlignHCenter);
    m_decades->setObjectName(u"decadeList"_qs);
    m_decades->setFixedWidth(decadeWidth);
    connect(m_decades, &QListWidget::currentRowChanged, this, &CTimeLine::showDecade);
    column->addWidget(m_decades, 1);
    column->addWidget(m_next, 0, Qt::AlignHCenter);
    return column;
}

QVBoxLayout *CTimeLine::newFilmColumn()
{
    auto *column = new QVBoxLayout;
    m_filmHeading->setObjectName(u"filmNameLabel"_qs);
    column->addWidget(m_filmHeading);
    m_films->setObjectName(u"presetFilmStrip"_qs);
    m_films->setFixedWidth(filmWidth);
    m_films->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // a long name ends in dots
    const auto choose
        = [this](const QListWidgetItem *item) { Q_EMIT presetChosen(item->data(Qt::UserRole).toString()); };
    connect(m_films, &QListWidget::itemClicked, this, choose);
    connect(m_films, &QListWidget::itemActivated, this, choose); // by the keyboard
    column->addWidget(m_films, 1);
    return column;
}

QVBoxLayout *CTimeLine::newEventColumn()
{
    auto *column = new QVBoxLayout;
    m_eventHeading->setObjectName(u"filmNameLabel"_qs);
    column->addWidget(m_eventHeading);
    m_events->setObjectName(u"filmDescription"_qs);
    m_events->setOpenLinks(false);
    connect(m_events, &QTextBrowser::anchorClicked, this, &CTimeLine::followLink);
    column->addWidget(m_events, 1);
    return column;
}

void CTimeLine::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void CTimeLine::retranslate()
{
    setWindowTitle(tr("Film history"));
    m_previous->setToolTip(tr("The decade before"));
    m_next->setToolTip(tr("The next decade"));
    m_filmHeading->setText(tr("Films"));
    m_eventHeading->setText(tr("Events"));
    m_previous->setAccessibleName(m_previous->toolTip());
    m_next->setAccessibleName(m_next->toolTip());
    m_decades->setAccessibleName(windowTitle());
    m_films->setAccessibleName(m_filmHeading->text());
    m_events->setAccessibleName(m_eventHeading->text());
    const QString language = spokenLanguage();
    const int row = std::max(m_decades->currentRow(), 0);
    {
        const QSignalBlocker blocker(m_decades);
        m_decades->clear();
        for (const Decade &decade : m_history.decades()) {
            m_decades->addItem(decade.label(language));
        }
        m_decades->setCurrentRow(row);
    }
    showDecade();
}

void CTimeLine::step(int step)
{
    m_decades->setCurrentRow(std::clamp(m_decades->currentRow() + step, 0, std::max(m_decades->count() - 1, 0)));
}

void CTimeLine::showDecade()
{
    const int row = m_decades->currentRow();
    m_previous->setEnabled(row > 0);
    m_next->setEnabled(row + 1 < m_decades->count());
    if (row < 0) {
        m_decade->clear();
        m_films->clear();
        m_events->setPlainText(m_history.error());
        return;
    }
    const Decade &decade = m_history.decades().at(row);
    m_decade->setText(decade.label(spokenLanguage()));
    showFilms(decade);
    QString text;
    for (const HistoryEvent &event : decade.events) {
        text += textOf(event);
    }
    m_events->setHtml(text);
}

void CTimeLine::showFilms(const Decade &decade)
{
    m_films->clear();
    for (const QString &id : decade.films) {
        auto *item = new QListWidgetItem(m_library->displayName(id, spokenLanguage()), m_films); // the list owns it
        item->setData(Qt::UserRole, id);
    }
}

/*! HTML: title, story, films to try as links, credit. The texts of the data are plain ones. */
QString CTimeLine::textOf(const HistoryEvent &event) const
{
    const QString language = spokenLanguage();
    QString text = u"<h3>%1</h3><p>%2</p>"_qs.arg(textIn(event.titles, language).toHtmlEscaped(),
                                                  textIn(event.descriptions, language).toHtmlEscaped());
    QStringList films;
    for (const QString &id : event.films) {
        films.append(QString(linkForm).arg(linkScheme, QString::fromLatin1(QUrl::toPercentEncoding(id)),
                                           m_library->displayName(id, language).toHtmlEscaped()));
    }
    if (!films.isEmpty()) {
        text += u"<p>%1</p>"_qs.arg(tr("To try: %1").arg(films.join(u", "_qs)));
    }
    return text + u"<p><small>%1</small></p><hr/>"_qs.arg(event.copyright.trimmed().toHtmlEscaped());
}

void CTimeLine::followLink(const QUrl &link)
{
    if (link.scheme() == linkScheme) {
        Q_EMIT presetChosen(link.path(QUrl::FullyDecoded)); // keep last
    }
}
