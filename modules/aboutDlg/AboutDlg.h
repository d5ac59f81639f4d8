// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "baseDialogs/BaseDialog.h"
#include "utilsDll/frame/Export.h"

#include <memory>

namespace ZYX_zglv6 {

class AboutForm;

/*!
    The about box: a panel without a frame, with a page on the product and one with the licences of others, which a link
    on the first one opens. It has the look of its parent's sheets; without a parent, set the sheets on it.

    The licences are the ".txt" files in the folder "Licenses" of the product's installation. They are read once, when
    their page is first shown; without such files it has the acknowledgement alone. Without the folder it is empty, and
    each visit looks again. Texts are in the language that the program runs in when the dialog is made. Main thread
    only.
*/
class UTILSDLL_EXPORT CAboutDlg : public CBaseDialog
{
    Q_OBJECT

public:
    CAboutDlg(QWidget *parent, QFlags<Qt::WindowType> flags);
    ~CAboutDlg() override;

    /*! Opens the dialog beside the application, which goes on, and returns at once. */
    virtual void myExec();

    /*! Adds a blank and \a suffix to the product's name on the first page, at each call; nothing for an empty one. */
    void updateProductName(const QString &suffix);

    /*! Whether the point of the desktop lies in the dialog, shown or not. */
    bool isPointInside(const QPoint &globalPoint) const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void onBack();
    void onLinkClicked(QString link);

private:
    void addImages();
    void fillLabels();
    void addBackButton();
    void switchView(bool showLicenses);

    const std::unique_ptr<AboutForm> m_form;
};

/*!
    The about box in a host program without Qt windows: with a frame and the product's icon, in the middle of its screen
    whenever it is shown.
*/
class UTILSDLL_EXPORT CPhotoshopAboutDlg : public CAboutDlg
{
    Q_OBJECT

public:
    /*!
        \a parentWindow is the host's window, an HWND; on X11 the window's number. The widget that stands for it lasts
        as long as the process.
    */
    explicit CPhotoshopAboutDlg(quint64 parentWindow);
    ~CPhotoshopAboutDlg() override;

    /*! Opens the dialog and returns when it is closed; the host waits. */
    void myExec() override;

protected:
    void showEvent(QShowEvent *event) override;
};

} // namespace ZYX_zglv6
