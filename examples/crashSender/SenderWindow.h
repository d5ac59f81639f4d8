// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "CrashReport.h"
#include "ReportDelivery.h"

#include <QtWidgets/QMainWindow>

class CContentsView;
class QBoxLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;

/*!
    Shows what a report holds, takes an address and a comment for it, and sends it or saves a copy.

    What is shown is what is sent: the texts go into the archive first, and the archive is shown anew.
*/
class CSenderWindow final : public QMainWindow
{
    Q_OBJECT

public:
    /*! \a report and \a delivery outlive the window; \a destination is the service in words, empty if there is none. */
    CSenderWindow(CCrashReport &report, CReportDelivery &delivery, const QString &product, const QString &destination);

    /*! Brings the texts into the archive and saves a copy of it. False, and told in the window: there is none. */
    bool saveCopy(const QString &path);

public Q_SLOTS:
    /*! delivered() tells what became of it, at times from within. Does nothing where there is nothing to send. */
    void send();

Q_SIGNALS:
    /*! \a failure is empty if there is a copy now. */
    void copied(const QString &path, const QString &failure);
    void delivered(const DeliveryResult &result);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void layOut(const QString &product, const QString &destination);
    void addHead(QBoxLayout &column, const QString &product, const QString &destination);
    void explain(const QString &product, const QString &destination);
    void addFields(QBoxLayout &column);
    QWidget *newButtonStrip();
    void orderKeys();
    void showContents();
    void showNothing();

    bool takeTexts();
    QByteArray takeArchive(QString &failure);
    void askForCopy();
    void leaveOrCancel();
    void setSending(bool isSending);
    void showProgress(qint64 sent, qint64 total);
    void showResult(const DeliveryResult &result);
    void showStatus(const QString &text, QLatin1StringView verdict = {});

    CCrashReport &m_report;
    CReportDelivery &m_delivery;
    CContentsView *m_contents;
    QLabel *m_heading;
    QLabel *m_explanation;
    QLabel *m_archiveLabel;
    QLineEdit *m_email;
    QPlainTextEdit *m_comment;
    QLabel *m_status;
    QProgressBar *m_progress;
    QPushButton *m_send;
    QPushButton *m_save;
    QPushButton *m_close;
    const bool m_hasService;
    QWidget *m_form = nullptr;
    bool m_isSent = false;
};
