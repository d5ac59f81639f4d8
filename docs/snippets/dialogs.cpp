// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"

#include "utilsDll/dialogs/MessageBox.h"
#include "utilsDll/dialogs/ProgressPainter.h"
#include "utilsDll/dialogs/SettingsPushButton.h"

#include <QtWidgets/QVBoxLayout>

using namespace ZYX_zglv6;

namespace Snippets {

//! [rows]
void addRows(QWidget *panel, const QList<Caption> &captions)
{
    auto *layout = new QVBoxLayout(panel);
    for (const auto &[id, text] : captions) {
        auto *row = new CSettingsPushButton(panel);
        row->init(text);
        row->setButtonCheckable(true);
        row->setProperty("GUID", id); // the same in every run and in every language
        row->adjustWidth(160); // all rows of a panel alike
        layout->addWidget(row);
    }
}
//! [rows]

//! [save]
/*! Whether a window with changes may close. */
bool mayClose(QWidget *window, const std::function<bool()> &save)
{
    const QMessageBox::StandardButton answer = CMessageBox::saveDiscardCancelMessage(
        window, u"Develop"_qs, u"The photograph was changed. Save the changes?"_qs, QMessageBox::Save);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}
//! [save]

//! [checkBox]
/*! Asks about a file until the user has seen enough of the question. */
bool mayThrowAway(QWidget *window, const QString &name, bool &isAskedAgain)
{
    const QString text = u"Move %1 to the trash?"_qs.arg(name.toHtmlEscaped()); // a name may look like markup
    const auto [answer, isLastTime] = CMessageBox::yesNoMessageWithCheckBox(
        window, u"Trash"_qs, text, u"Do not ask again"_qs, false, QMessageBox::No);
    isAskedAgain = !(answer == QMessageBox::Yes && isLastTime);
    return answer == QMessageBox::Yes;
}
//! [checkBox]

//! [busy]
/*! Computes while \a painter, which is there as long as its preview, says so: after 300 ms, if events come meanwhile.
 */
void develop(ProgressPainter &painter, const std::function<void()> &compute)
{
    painter.onStartProgress(true);
    compute();
    painter.onStopProgress(false); // also takes back what has not been shown yet
}
//! [busy]

//! [zoom]
void showScale(ZoomPainter &painter, double scale)
{
    painter.showZoom(QString::number(qRound(scale * 100)), 0); // at the top, for a second
}
//! [zoom]

} // namespace Snippets
