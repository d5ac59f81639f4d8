// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "PhotoFiles.h"

#include "utilsDll/files/FileUtils.h"
#include "utilsDll/frame/LoggerInterface.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSize>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QMessageBox>

using namespace ZYX_zglv6;

namespace {

constexpr QSize sizeForNames(400, 0);

QString nameOf(const QString &photo)
{
    return QFileInfo(photo).fileName();
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

CPhotoFiles::Outcome CPhotoFiles::moveToTrash(const QString &photo) const
{
    if (!askWhetherToTrash(photo)) {
        return {};
    }
    if (moveFileToTrash(QDir::toNativeSeparators(photo)) != FileManagement::FileOperationSucceeded) {
        ZYX_LOG('W', photo + u" could not be moved to the trash");
        return {false, tr("%1 can't be moved to the trash").arg(nameOf(photo))};
    }
    return {true, tr("%1 is in the trash").arg(nameOf(photo))};
}

bool CPhotoFiles::askWhetherToTrash(const QString &photo) const
{
    QMessageBox box(m_window);
    box.setIcon(QMessageBox::Question);
    box.setWindowTitle(tr("Move to the trash"));
    box.setTextFormat(Qt::PlainText); // a name may look like markup
    box.setText(tr("Move \"%1\" to the trash?").arg(nameOf(photo)));
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::No);
    box.setWindowModality(Qt::WindowModal);
    return box.exec() == QMessageBox::Yes;
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
    const QFileInfo file(name);
    const QString base = tr("%1 copy").arg(file.completeBaseName());
    return file.suffix().isEmpty() ? base : QString(base + u'.' + file.suffix());
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
