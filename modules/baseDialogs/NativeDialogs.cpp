// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "baseDialogs/NativeDialogs.h"

#include "baseDialogs/FolderPicker_p.h"
#include "baseDialogs/ProposedFileName_p.h"
#include "platform/FolderDialog.h"
#include "utilsDll/frame/Assertions.h"
#include "utilsDll/frame/SharedConstants.h"

#include <QtCore/QDir>

template class UTILSDLL_EXPORT_TEMPLATE_DEFINITION Singleton<ZYX_zglv6::CNativeDialogs>;

namespace ZYX_zglv6 {

CNativeDialogs::CNativeDialogs() = default;

CNativeDialogs::~CNativeDialogs() = default;

QString CNativeDialogs::getOpenFileName(QWidget *parent, const QString &caption, const QString &dir,
                                        const QString &filter, QString *selectedFilter,
                                        QFlags<QFileDialog::Option> options)
{
    return QFileDialog::getOpenFileName(parent, caption, dir, filter, selectedFilter, options);
}

QStringList CNativeDialogs::getOpenFileNames(QWidget *parent, const QString &caption, const QString &dir,
                                             const QString &filter, QString *selectedFilter,
                                             QFlags<QFileDialog::Option> options)
{
    return QFileDialog::getOpenFileNames(parent, caption, dir, filter, selectedFilter, options);
}

QString CNativeDialogs::getExistingDirectory(QWidget *parent, const QString &caption, const QString &dir,
                                             QFlags<QFileDialog::Option> options)
{
    return QFileDialog::getExistingDirectory(parent, caption, dir, options);
}

QString CNativeDialogs::getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
                                        const QString &filter, QString *selectedFilter,
                                        QFlags<QFileDialog::Option> options)
{
    QString name
        = QFileDialog::getSaveFileName(parent, caption, proposedFileName(dir, filter), filter, selectedFilter, options);
    ASSERT(!selectedFilter || !selectedFilter->isEmpty());
    return name;
}

QString CNativeDialogs::getFileBrowserDirectory(QWidget *parent, bool withRawFiles, const QString &caption,
                                                const QString &dir, QFlags<QFileDialog::Option> /*options*/)
{
    const QLatin1StringView patterns = withRawFiles ? imageAndRawFilter : imageFilter;
    ZyxPlatform::FolderQuestion question;
    question.owner = parent->winId();
    question.title = caption;
    question.directory = QDir::toNativeSeparators(dir);
    question.filterName = u"Image Files"_qs;
    question.filterSpecification = QString(patterns).replace(u' ', u';');
    question.buttonLabel = u"Select Folder"_qs;
    if (const auto answer = ZyxPlatform::chooseInSystemDialog(question)) {
        return *answer;
    }
    const QString filter = question.filterName + u" (" + patterns + u')';
    return chooseInFolderPicker(parent, question.title, question.directory, filter, question.buttonLabel);
}

void CNativeDialogs::setOpenFileName(const QString &fileName)
{
    m_openFileName = fileName;
}

void CNativeDialogs::setSaveFileName(const QString &fileName)
{
    m_saveFileName = fileName;
}

void CNativeDialogs::setExistingDirectory(const QString &fileName)
{
    m_existingDirectory = fileName;
}

void CNativeDialogs::setOpenFileNames(const QList<QVariant> &fileNames)
{
    m_openFileNames.clear();
    for (const QVariant &fileName : fileNames) {
        m_openFileNames.append(fileName.toString());
    }
}

} // namespace ZYX_zglv6
