// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"
#include "utilsDll/frame/Singleton.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtWidgets/QFileDialog>

namespace ZYX_zglv6 {

class CNativeDialogs;

} // namespace ZYX_zglv6

extern template class UTILSDLL_EXPORT_TEMPLATE Singleton<ZYX_zglv6::CNativeDialogs>;

namespace ZYX_zglv6 {

/*!
    The gate through which the user chooses files and folders; one for the process, reached by
    Singleton<CNativeDialogs>::instance(). The functions wait for the user; an empty answer is a cancelled dialog.
    Main thread only.

    The setters keep the answers that a driver of scripts wants to give, for it to read; no dialog asks for them.
*/
class UTILSDLL_EXPORT CNativeDialogs : public QObject, public Singleton<CNativeDialogs>
{
    Q_OBJECT

public:
    ~CNativeDialogs() override;

    /*! QFileDialog::getOpenFileName. */
    QString getOpenFileName(QWidget *parent, const QString &caption, const QString &dir, const QString &filter,
                            QString *selectedFilter, QFlags<QFileDialog::Option> options);

    /*! QFileDialog::getOpenFileNames. */
    QStringList getOpenFileNames(QWidget *parent, const QString &caption, const QString &dir, const QString &filter,
                                 QString *selectedFilter, QFlags<QFileDialog::Option> options);

    /*! QFileDialog::getExistingDirectory. */
    QString getExistingDirectory(QWidget *parent, const QString &caption, const QString &dir,
                                 QFlags<QFileDialog::Option> options);

    /*!
        QFileDialog::getSaveFileName. It first gives a proposed name in \a dir that has no extension, or one that only
        cameras write, or a part of such a one, the first extension of \a filter. A \a selectedFilter that is still
        empty afterwards, as it is when the user cancels, is reported as a failed assertion.
    */
    QString getSaveFileName(QWidget *parent, const QString &caption, const QString &dir, const QString &filter,
                            QString *selectedFilter, QFlags<QFileDialog::Option> options);

    /*!
        A folder or an image file, with native separators: what is selected when the mouse is released on the button
        "Select Folder", else the folder that is shown. Empty also if the system can't show its dialog. \a parent is
        never null; a \a dir that isn't there and an empty \a caption leave the choice to the dialog. \a options change
        nothing.
    */
    QString getFileBrowserDirectory(QWidget *parent, bool withRawFiles, const QString &caption, const QString &dir,
                                    QFlags<QFileDialog::Option> options);

    Q_INVOKABLE void setOpenFileName(const QString &fileName);
    Q_INVOKABLE void setSaveFileName(const QString &fileName);
    Q_INVOKABLE void setExistingDirectory(const QString &fileName);

    /*! In the place of those set before. */
    Q_INVOKABLE void setOpenFileNames(const QList<QVariant> &fileNames);

private:
    friend class ::Singleton<CNativeDialogs>;

    CNativeDialogs();

    QString m_openFileName;
    QString m_saveFileName;
    QString m_existingDirectory;
    QStringList m_openFileNames;
};

} // namespace ZYX_zglv6
