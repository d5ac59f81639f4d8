// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "SenderWindow.h"

#include "ContentsView.h"

#include "storageLocation/storageLocation.h"
#include "utilsDll/frame/LoggerInterface.h"
#include "utilsDll/look/SharedUtils.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtCore/QSaveFile>
#include <QtGui/QCloseEvent>
#include <QtGui/QIcon>
#include <QtGui/QShortcut>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

using namespace ZYX_zglv6;

namespace {

constexpr QSize firstSize(940, 680);
constexpr QSize sizeOfNothing(520, 190);
constexpr int margin = 20;
constexpr int spacing = 12;
constexpr int iconEdge = 48;
constexpr int commentHeight = 84;
constexpr QLatin1StringView good("good");
constexpr QLatin1StringView bad("bad");

QLabel *newText(const QString &name)
{
    auto *label = new QLabel;
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText); // names and answers come from outside
    return label;
}

QPushButton *newButton(const QString &name, const QString &text)
{
    auto *button = new QPushButton(text);
    button->setObjectName(name);
    // A main window has no default button: Enter presses the one that has the focus.
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto *enter = new QShortcut(key, button);
        enter->setContext(Qt::WidgetShortcut);
        QObject::connect(enter, &QShortcut::activated, button, &QPushButton::click);
    }
    return button;
}

/*! One that is there is replaced. */
bool writeCopy(const QString &path, const QByteArray &bytes)
{
    QSaveFile copy(path);
    return copy.open(QIODevice::WriteOnly) && copy.write(bytes) == bytes.size() && copy.commit();
}

} // namespace

CSenderWindow::CSenderWindow(CCrashReport &report, CReportDelivery &delivery, const QString &product,
                             const QString &destination)
    : m_report(report)
    , m_delivery(delivery)
    , m_contents(new CContentsView)
    , m_heading(newText(u"heading"_qs))
    , m_explanation(newText(u"explanation"_qs))
    , m_archiveLabel(newText(u"archiveLabel"_qs))
    , m_email(new QLineEdit(report.email()))
    , m_comment(new QPlainTextEdit(report.comment()))
    , m_status(newText(u"statusLabel"_qs))
    , m_progress(new QProgressBar)
    , m_send(newButton(u"sendButton"_qs, tr("&Send")))
    , m_save(newButton(u"saveButton"_qs, tr("Sa&ve a copy\u2026")))
    , m_close(newButton(u"closeButton"_qs, tr("&Close")))
    , m_hasService(!destination.isEmpty())
{
    setObjectName(u"CrashSenderMainWindow"_qs);
    setWindowTitle(tr("%1 crash report").arg(product));
    setCustomStyleSheet(this, QssLoadCrashSender, QString());
    layOut(product, destination);
    orderKeys();
    resize(firstSize);

    connect(m_send, &QPushButton::clicked, this, &CSenderWindow::send);
    connect(m_save, &QPushButton::clicked, this, &CSenderWindow::askForCopy);
    connect(m_close, &QPushButton::clicked, this, &CSenderWindow::leaveOrCancel);
    connect(m_email, &QLineEdit::returnPressed, m_comment, qOverload<>(&QWidget::setFocus));
    connect(&m_delivery, &CReportDelivery::progressed, this, &CSenderWindow::showProgress);
    connect(&m_delivery, &CReportDelivery::finished, this, &CSenderWindow::showResult);
    if (m_report.archive().isEmpty()) {
        showNothing();
    }
}

void CSenderWindow::layOut(const QString &product, const QString &destination)
{
    auto *central = new QWidget;
    central->setObjectName(u"centralWidget"_qs);
    auto *whole = new QVBoxLayout(central);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    auto *column = new QVBoxLayout;
    column->setContentsMargins(margin, margin, margin, spacing);
    column->setSpacing(spacing);
    addHead(*column, product, destination);
    addFields(*column);
    whole->addLayout(column, 1);
    whole->addWidget(newButtonStrip());
    setCentralWidget(central);
}

void CSenderWindow::explain(const QString &product, const QString &destination)
{
    const bool isEarlier = m_report.origin() == CCrashReport::Origin::Earlier;
    const QString purpose = tr("It helps to mend what went wrong, and holds the files below and nothing else. ");
    const QString way = m_hasService
        ? tr("Nothing leaves this computer before you press Send; then it goes to %1.").arg(destination)
        : tr("It can't be sent: the preferences name no host that could be a service.");
    m_heading->setText(
        (isEarlier ? tr("%1 has a report of an earlier crash") : tr("%1 has closed unexpectedly")).arg(product));
    m_explanation->setText((isEarlier ? tr("The report was packed then: e-mail and comment stay as they are in it.")
                                      : tr("A report of what happened is ready."))
                           + u' ' + purpose + way);
}

void CSenderWindow::addHead(QBoxLayout &column, const QString &product, const QString &destination)
{
    explain(product, destination);
    auto *icon = new QLabel;
    icon->setPixmap(QIcon(u":/icons/app_icon/logo_64.png"_qs).pixmap(iconEdge));
    auto *texts = new QVBoxLayout;
    texts->setSpacing(spacing / 3);
    texts->addWidget(m_heading);
    texts->addWidget(m_explanation);
    texts->addStretch();
    auto *head = new QHBoxLayout;
    head->setSpacing(spacing + 4);
    head->addWidget(icon, 0, Qt::AlignTop);
    head->addLayout(texts, 1);
    column.addLayout(head);
}

void CSenderWindow::addFields(QBoxLayout &column)
{
    m_form = new QWidget;
    auto *form = new QVBoxLayout(m_form);
    form->setContentsMargins(0, 0, 0, 0);
    form->setSpacing(spacing / 2);
    auto *caption = new QHBoxLayout;
    auto *contentsLabel = new QLabel(tr("What will be sen&t"));
    contentsLabel->setBuddy(m_contents->list());
    m_archiveLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    caption->addWidget(contentsLabel);
    caption->addWidget(m_archiveLabel, 1);
    form->addLayout(caption);
    form->addWidget(m_contents, 1);
    form->addSpacing(spacing / 2);

    m_email->setObjectName(u"emailField"_qs);
    m_email->setAccessibleName(tr("Your e-mail address"));
    m_comment->setObjectName(u"commentField"_qs);
    m_comment->setAccessibleName(tr("What you were doing"));
    m_comment->setTabChangesFocus(true);
    m_comment->setFixedHeight(commentHeight);
    const bool isEditable = m_report.origin() == CCrashReport::Origin::New;
    m_email->setEnabled(isEditable);
    m_comment->setEnabled(isEditable);
    auto *texts = new QWidget;
    auto *rows = new QFormLayout(texts);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setHorizontalSpacing(spacing);
    rows->setVerticalSpacing(spacing / 2);
    rows->setLabelAlignment(Qt::AlignLeft);
    rows->addRow(tr("Your &e-mail, for questions"), m_email);
    rows->addRow(tr("What were you &doing?"), m_comment);
    form->addWidget(texts);
    texts->setVisible(isEditable); // an earlier report has its own, which are not known here
    column.addWidget(m_form, 1);

    showContents();
}

void CSenderWindow::showContents()
{
    const QFileInfo archive(m_report.archive());
    m_contents->showArchive(archive.filePath());
    m_archiveLabel->setText(u"%1, %2"_qs.arg(archive.fileName(), QLocale().formattedDataSize(archive.size())));
}

QWidget *CSenderWindow::newButtonStrip()
{
    m_status->setAccessibleName(tr("State"));
    m_status->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_status->setMinimumHeight(2 * m_status->fontMetrics().lineSpacing());
    m_progress->setObjectName(u"progressBar"_qs);
    m_progress->setAccessibleName(tr("Progress of the sending"));
    m_progress->setTextVisible(false);
    QSizePolicy keepsPlace = m_progress->sizePolicy();
    keepsPlace.setRetainSizeWhenHidden(true);
    m_progress->setSizePolicy(keepsPlace);
    m_progress->hide();

    auto *strip = new QWidget;
    strip->setObjectName(u"buttonStrip"_qs);
    strip->setAttribute(Qt::WA_StyledBackground);
    auto *column = new QVBoxLayout(strip);
    column->setContentsMargins(margin, spacing, margin, spacing + 2);
    column->setSpacing(spacing / 2);
    column->addWidget(m_status);
    column->addWidget(m_progress);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(spacing);
    buttons->addWidget(m_save);
    buttons->addStretch();
    buttons->addWidget(m_send);
    buttons->addWidget(m_close);
    column->addLayout(buttons);
    showStatus(tr("The report lies in %1").arg(QDir::toNativeSeparators(m_report.archive())));
    return strip;
}

void CSenderWindow::orderKeys()
{
    const QList<QWidget *> order{
        m_contents->list(), m_contents->preview(), m_email, m_comment, m_send, m_close, m_save};
    for (qsizetype i = 1; i < order.size(); ++i) {
        setTabOrder(order.at(i - 1), order.at(i));
    }
    const auto addShortcut = [this](const QKeySequence &keys, auto slot) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, slot);
    };
    addShortcut(Qt::Key_Escape, &CSenderWindow::leaveOrCancel);
    addShortcut(Qt::CTRL | Qt::Key_Return, &CSenderWindow::send);
    (m_email->isEnabled() ? static_cast<QWidget *>(m_email) : m_send)->setFocus();
}

void CSenderWindow::showNothing()
{
    const bool isFailure = m_report.origin() == CCrashReport::Origin::NotPacked;
    m_heading->setText(isFailure ? tr("The crash report could not be packed") : tr("There is no crash report to send"));
    m_explanation->setText(isFailure ? tr("There has been a crash, but no archive of it could be written to %1.")
                                           .arg(QDir::toNativeSeparators(CStorageLocation::crashFilesPath()))
                                     : tr("No crash has left anything to report."));
    m_form->hide();
    m_status->hide();
    m_send->setEnabled(false);
    m_send->hide();
    m_save->hide();
    resize(sizeOfNothing);
    m_close->setFocus();
}

bool CSenderWindow::takeTexts()
{
    if (m_report.origin() != CCrashReport::Origin::New) {
        return true;
    }
    const bool isDone = m_report.setTexts(m_email->text(), m_comment->toPlainText());
    showContents();
    return isDone;
}

QByteArray CSenderWindow::takeArchive(QString &failure)
{
    if (!takeTexts()) {
        failure = tr("e-mail and comment could not be brought into the report");
        return QByteArray();
    }
    const QByteArray archive = m_report.read();
    if (archive.isNull()) {
        failure = tr("the report can't be read");
    }
    return archive;
}

void CSenderWindow::send()
{
    if (!m_send->isEnabled()) {
        return;
    }
    QString failure = m_hasService ? QString() : tr("the preferences name no host that could be a service");
    const QByteArray archive = m_hasService ? takeArchive(failure) : QByteArray();
    if (!failure.isEmpty()) {
        showResult({DeliveryResult::Failed, failure});
        return;
    }
    ZYX_LOG('I', u"Sends " + m_report.archive());
    showStatus(tr("Sending %1\u2026").arg(QLocale().formattedDataSize(archive.size())));
    setSending(true);
    m_delivery.send(archive);
}

bool CSenderWindow::saveCopy(const QString &path)
{
    const QString shown = QDir::toNativeSeparators(path);
    QString failure;
    const QByteArray archive = takeArchive(failure);
    if (failure.isEmpty() && !writeCopy(path, archive)) {
        failure = tr("%1 could not be written").arg(shown);
    }
    const bool isSaved = failure.isEmpty();
    showStatus(isSaved ? tr("A copy was saved as %1").arg(shown) : tr("No copy was saved: %1").arg(failure),
               isSaved ? good : bad);
    ZYX_LOG('I', m_status->text());
    Q_EMIT copied(path, failure);
    return isSaved;
}

void CSenderWindow::askForCopy()
{
    const QString proposal = QDir::home().filePath(QFileInfo(m_report.archive()).fileName());
    const QString path = QFileDialog::getSaveFileName(this, tr("Save a copy"), proposal, tr("Archives (*.zip)"));
    if (!path.isEmpty()) {
        saveCopy(path);
    }
}

void CSenderWindow::leaveOrCancel()
{
    if (m_delivery.isSending()) {
        m_delivery.cancel();
        return;
    }
    close();
}

void CSenderWindow::closeEvent(QCloseEvent *event)
{
    m_delivery.cancel();
    event->accept();
}

void CSenderWindow::setSending(bool isSending)
{
    const bool isOpen = !isSending && !m_isSent;
    const bool isEditable = isOpen && m_report.origin() == CCrashReport::Origin::New;
    const bool hadFocus = m_send->hasFocus() || m_email->hasFocus() || m_comment->hasFocus();
    if (isSending && hadFocus) {
        m_close->setFocus(); // where the next key is of use
    }
    m_email->setEnabled(isEditable);
    m_comment->setEnabled(isEditable);
    m_send->setEnabled(isOpen);
    m_save->setEnabled(!isSending);
    m_close->setText(isSending ? tr("&Cancel") : tr("&Close"));
    m_progress->setVisible(isSending);
    m_progress->setRange(0, 0); // busy, until it is known how far it is
}

void CSenderWindow::showProgress(qint64 sent, qint64 total)
{
    if (total <= 0 || sent >= total) {
        m_progress->setRange(0, 0); // waits for the answer
        return;
    }
    m_progress->setRange(0, 1000);
    m_progress->setValue(int(sent * 1000 / total));
}

void CSenderWindow::showResult(const DeliveryResult &result)
{
    m_isSent = result.verdict == DeliveryResult::Accepted;
    setSending(false);
    const QString stays = u'\n' + tr("It stays in %1").arg(QDir::toNativeSeparators(m_report.archive()));
    switch (result.verdict) {
    case DeliveryResult::Accepted:
        showStatus(tr("Thank you: the report has arrived. Its identifier is %1").arg(result.text), good);
        break;
    case DeliveryResult::Refused:
        showStatus(tr("The service has refused the report: %1.").arg(result.text) + stays, bad);
        break;
    case DeliveryResult::Failed:
        showStatus(tr("The report was not sent: %1.").arg(result.text) + stays, bad);
        break;
    case DeliveryResult::Cancelled:
        showStatus(tr("The sending was cancelled.") + stays);
        break;
    }
    ZYX_LOG('I', m_status->text());
    Q_EMIT delivered(result); // keep last: a slot may close this window
}

void CSenderWindow::showStatus(const QString &text, QLatin1StringView verdict)
{
    m_status->setText(text);
    m_status->setProperty("verdict", QString(verdict));
    m_status->style()->unpolish(m_status); // the sheet looks at the property only then
    m_status->style()->polish(m_status);
}
