// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "PhotoFiles.h"

#include "baseDialogs/NativeDialogs.h"
#include "utilsDll/dialogs/MessageBox.h"
#include "utilsDll/files/FileUtils.h"
#include "utilsDll/frame/LoggerInterface.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <QtCore/QSize>
#include <QtGui/QImageReader>
#include <QtGui/QImageWriter>
#include <QtGui/QTextDocument>
#include <QtWidgets/QInputDialog>

using namespace ZYX_zglv6;

namespace {

constexpr QSize sizeForNames(400, 0);
constexpr QLatin1StringView trashWithoutQuestionKey("lightbox/trashWithoutQuestion");

/*! A name may look like markup. */
QString asPlainText(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

QString nameOf(const QString &photo)
{
    return QFileInfo(photo).fileName();
}

/*! \a form has a place for what stands before the suffix of \a name. */
QString withBaseName(const QString &name, const QString &form)
{
    const QFileInfo file(name);
    const QString base = form.arg(file.completeBaseName());
    return file.suffix().isEmpty() ? base : QString(base + u'.' + file.suffix());
}

/*! The free space is 0 also where it can't be asked for: then the copy itself shows whether there is room. */
bool hasRoomFor(const QString &photo)
{
    const QFileInfo file(photo);
    const qint64 space = availableDiskSpace(file.absolutePath());
    return space <= 0 || space >= file.size();
}

} // namespace

CPhotoFiles::CPhotoFiles(QWidget *window)
    : m_window(window)
{
}

CPhotoFiles::Outcome CPhotoFiles::moveToTrash(const QString &photo, bool isChanged) const
{
    if (!askWhetherToTrash(photo, isChanged)) {
        return {};
    }
    if (moveFileToTrash(QDir::toNativeSeparators(photo)) != FileManagement::FileOperationSucceeded) {
        ZYX_LOG('W', photo + u" could not be moved to the trash");
        return {false, tr("%1 can't be moved to the trash").arg(nameOf(photo))};
    }
    return {true, QString()};
}

bool CPhotoFiles::askWhetherToTrash(const QString &photo, bool isChanged) const
{
    if (!isChanged && CSettings().value(trashWithoutQuestionKey, false).toBool()) {
        return true;
    }
    const auto [answer, isLastQuestion] = CMessageBox::yesNoMessageWithCheckBox(
        m_window, tr("Move to the trash"), asPlainText(tr("Move \"%1\" to the trash?").arg(nameOf(photo))),
        tr("Do not ask again"), false, QMessageBox::No);
    if (answer != QMessageBox::Yes) {
        return false;
    }
    if (isLastQuestion) {
        CSettings().setValue(trashWithoutQuestionKey, true);
    }
    return true;
}

CPhotoFiles::Outcome CPhotoFiles::savePrint(const QString &photo,
                                            const std::function<QImage(const QImage &)> &develop) const
{
    QString filter = tr("JPEG (*.jpg)");
    QString path = askForNameOfPrint(photo, filter);
    if (path.isEmpty()) {
        return {};
    }
    if (QFileInfo(path).suffix().isEmpty()) {
        path += filter == tr("PNG (*.png)") ? u".png"_qs : u".jpg"_qs;
        if (QFileInfo::exists(path)) { // nobody has asked whether to replace that
            return {false, tr("%1 is there already").arg(nameOf(path))};
        }
    }
    QImageReader reader(photo); // what is on the screen may be a smaller one
    reader.setAutoTransform(true);
    const QImage print = develop(reader.read());
    QSaveFile file(path); // what is there stays as it is until the print is whole
    QImageWriter writer(&file, QFileInfo(path).suffix().toLatin1());
    if (!file.open(QIODevice::WriteOnly) || !writer.write(print) || !file.commit()) {
        ZYX_LOG('W', path + u" could not be written");
        return {false, tr("%1 can't be saved").arg(nameOf(path))};
    }
    return {true, tr("Saved the print as %1").arg(nameOf(path))};
}

QString CPhotoFiles::askForNameOfPrint(const QString &photo, QString &filter) const
{
    return Singleton<CNativeDialogs>::instance().getSaveFileName(
        m_window, tr("Save the print"), QFileInfo(photo).absoluteDir().filePath(nameOfPrint(nameOf(photo))),
        tr("JPEG (*.jpg)") + u";;" + tr("PNG (*.png)"), &filter, QFileDialog::Options());
}

QMessageBox::StandardButton CPhotoFiles::askForTurned(const QString &photo) const
{
    return CMessageBox::saveDiscardCancelMessage(
        m_window, tr("Save the print"), asPlainText(tr("\"%1\" was turned. Save the print?").arg(nameOf(photo))),
        QMessageBox::Save);
}

CPhotoFiles::Outcome CPhotoFiles::saveCopy(const QString &photo) const
{
    QInputDialog dialog(m_window);
    dialog.setWindowTitle(tr("Save a copy"));
    dialog.setLabelText(tr("Name of the copy:"));
    dialog.setTextValue(nameOfCopy(nameOf(photo)));
    dialog.setWindowModality(Qt::WindowModal);
    dialog.resize(dialog.sizeHint().expandedTo(sizeForNames));
    return dialog.exec() == QDialog::Accepted ? copy(photo, dialog.textValue()) : Outcome();
}

QString CPhotoFiles::nameOfCopy(const QString &name)
{
    return withBaseName(name, tr("%1 copy"));
}

QString CPhotoFiles::nameOfPrint(const QString &name)
{
    return withBaseName(name, tr("%1 print"));
}

CPhotoFiles::Outcome CPhotoFiles::copy(const QString &photo, const QString &name)
{
    if (!validateFileName(name, false)) {
        return {false, tr("\"%1\" can't be the name of a file").arg(name)};
    }
    if (!hasRoomFor(photo)) {
        return {false, tr("There is no room for a copy of %1").arg(nameOf(photo))};
    }
    const QString target = QDir::cleanPath(QFileInfo(photo).absolutePath() + u'/' + name);
    if (copyRecursively(photo, target)) {
        return {true, tr("Saved a copy as %1").arg(nameOf(target))};
    }
    ZYX_LOG('W', photo + u" could not be copied to " + target);
    return {false,
            QFileInfo::exists(target) ? tr("%1 is there already").arg(nameOf(target))
                                      : tr("%1 can't be copied to %2").arg(nameOf(photo), nameOf(target))};
}
