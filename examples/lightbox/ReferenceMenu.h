// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QPointer>
#include <QtWidgets/QMenu>

#include <memory>

class CPhotoDialog;
class CPresetBrowser;
class CPresetLibrary;
class CTimeLine;

/*!
    The windows that show the data within the program: presets, the history of film and, where the build has it, the
    calibration modules for the open photograph. The data are read when a window first needs them.
*/
class CReferenceMenu final : public QMenu
{
    Q_OBJECT

public:
    explicit CReferenceMenu(QWidget *parent);
    ~CReferenceMenu() override;

    /*! The photograph that is open; empty if none is. */
    void setPhoto(const QString &path);

    // Null until they are opened for the first time.
    CPresetBrowser *presetBrowser() const;
    CTimeLine *timeLine() const;
    CPhotoDialog *calibrationPanel() const;

public Q_SLOTS:
    // The commands, called by their names.
    void showPresets();
    void showTimeLine();
    void showCalibration();

private:
    void addCommand(const QString &text, const QKeySequence &shortcut, const char *slot);
    std::shared_ptr<const CPresetLibrary> library();
    QWidget *parentOfWindows() const;

    QString m_photo;
    std::shared_ptr<const CPresetLibrary> m_library;
    // The window that the menu is in owns them.
    QPointer<CPresetBrowser> m_browser;
    QPointer<CTimeLine> m_timeLine;
    QPointer<CPhotoDialog> m_calibration;
};
