// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ReportsPage.h"

#include <QtCore/QLocale>
#include <QtCore/QStringView>

namespace {

constexpr int shownHashLength = 12;

/*! Texts of senders are shown as they are, in their own direction. */
QString shown(const QString &text)
{
    return u"<bdi>" + text.toHtmlEscaped() + u"</bdi>";
}

/*! The roles keep it a table for screen readers where the style sheet makes cards of the rows. */
QString cell(const QString &label, const QString &content)
{
    return u"<td role=\"cell\" data-label=\"%1\">%2</td>\n"_qs.arg(label, content);
}

QString timeText(const QDateTime &time)
{
    return time.toUTC().toString(u"yyyy-MM-dd HH:mm:ss"_qs) + u" UTC";
}

QString receivedCell(const StoredReport &report)
{
    const QString machineText = report.received.toUTC().toString(Qt::ISODateWithMs);
    return cell(u"Received"_qs, u"<time datetime=\"%1\">%2</time>"_qs.arg(machineText, timeText(report.received)));
}

QString sizeCell(const StoredReport &report)
{
    const QString size = QLocale::c().formattedDataSize(report.size, 1, QLocale::DataSizeIecFormat);
    return cell(u"Size"_qs, u"<span title=\"%1 bytes\">%2</span>"_qs.arg(QString::number(report.size), size));
}

QString hashCell(const StoredReport &report)
{
    const QString hash = report.sha256.toHtmlEscaped();
    return cell(u"SHA-256"_qs, u"<code title=\"%1\">%2\u2026</code>"_qs.arg(hash, hash.left(shownHashLength)));
}

QString downloadCell(const StoredReport &report)
{
    const QString label = u"Download the report of %1 %2, received %3"_qs.arg(
        report.origin.product, report.origin.version, timeText(report.received));
    return cell(u"Archive"_qs,
                u"<a href=\"/reports/%1.zip\" download aria-label=\"%2\">Download</a>"_qs.arg(
                    report.identifier.toHtmlEscaped(), label.toHtmlEscaped()));
}

QString row(const StoredReport &report)
{
    return u"<tr role=\"row\">\n" + receivedCell(report) + cell(u"Product"_qs, shown(report.origin.product))
        + cell(u"Version"_qs, shown(report.origin.version)) + cell(u"Platform"_qs, shown(report.origin.platform))
        + sizeCell(report) + hashCell(report) + downloadCell(report) + u"</tr>\n";
}

QString table(const QList<StoredReport> &reports)
{
    QString html = u"<table role=\"table\" aria-label=\"Crash reports, the newest first\">\n"
                   "<thead role=\"rowgroup\">\n<tr role=\"row\">\n"_qs;
    for (const auto heading :
         {QStringView(u"Received"), QStringView(u"Product"), QStringView(u"Version"), QStringView(u"Platform"),
          QStringView(u"Size"), QStringView(u"SHA-256"), QStringView(u"Archive")}) {
        html += u"<th role=\"columnheader\" scope=\"col\">%1</th>\n"_qs.arg(heading);
    }
    html += u"</tr>\n</thead>\n<tbody role=\"rowgroup\">\n";
    for (const StoredReport &report : reports) {
        html += row(report);
    }
    return html + u"</tbody>\n</table>\n";
}

QString summary(qsizetype shownCount, qint64 count)
{
    if (shownCount < count) {
        return u"<p>The newest %1 of %2 reports.</p>\n"_qs.arg(shownCount).arg(count);
    }
    return count == 1 ? u"<p>1 report.</p>\n"_qs : u"<p>%1 reports, the newest first.</p>\n"_qs.arg(count);
}

QString content(const QList<StoredReport> &reports, qint64 count)
{
    if (reports.isEmpty()) {
        return u"<p class=\"empty\">No report has been received yet. "
               "One that arrives is listed here when the page is loaded again.</p>\n"_qs;
    }
    return summary(reports.size(), count) + table(reports);
}

} // namespace

QByteArray reportsPage(const QList<StoredReport> &reports, qint64 count)
{
    const QString head = u"<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                         "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
                         "<title>Crash reports</title>\n"
                         "<link rel=\"icon\" href=\"/icon.svg\" type=\"image/svg+xml\">\n"
                         "<link rel=\"stylesheet\" href=\"/style.css\">\n"
                         "</head>\n<body>\n<main>\n<h1>Crash reports</h1>\n"_qs;
    const QString page = head + content(reports, count) + u"</main>\n</body>\n</html>\n";
    return page.toUtf8();
}
