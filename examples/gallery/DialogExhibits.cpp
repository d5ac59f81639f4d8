// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Exhibits.h"
#include "FileBrowser.h"
#include "Texts.h"

#include "aboutDlg/AboutDlg.h"
#include "baseDialogs/BaseDialog.h"
#include "baseDialogs/NativeDialogs.h"
#include "utilsDll/look/SharedUtils.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

using namespace ZYX_zglv6;

namespace {

constexpr QFileDialog::Option painted = QFileDialog::DontUseNativeDialog; // by Qt, in the product's look

QString images()
{
    return u"Images (*.jpg *.tiff)"_qs;
}

// ---- About boxes ----

/*! Goes when it is closed. */
CAboutDlg *newAboutBox(QWidget *parent)
{
    auto *about = new CAboutDlg(parent, {});
    about->setAttribute(Qt::WA_DeleteOnClose);
    return about;
}

/*! As if the last sentence of the legal line were clicked. */
void showLicenses(CAboutDlg &about)
{
    auto *legalLine = about.findChild<QLabel *>(u"copyrightTextLabel"_qs);
    QMetaObject::invokeMethod(legalLine, "linkActivated", Q_ARG(QString, u"licenses"_qs));
}

void openAboutBox(QWidget *parent)
{
    newAboutBox(parent)->myExec();
}

void openLicenses(QWidget *parent)
{
    CAboutDlg *about = newAboutBox(parent);
    showLicenses(*about);
    about->myExec();
}

void openAboutBoxWithSuffix(QWidget *parent)
{
    CAboutDlg *about = newAboutBox(parent);
    about->updateProductName(u"Elements"_qs);
    about->myExec();
}

void openHostAboutBox(QWidget *parent)
{
    QWidget host; // stands for a host's window
    host.resize(parent->size());
    auto *about = new CPhotoshopAboutDlg(host.winId());
    const std::unique_ptr<QWidget> child(about->parentWidget()); // which nothing else ends
    setCustomStyleSheet(about, QssLoadBaseSheets, {}); // it has none to inherit
    about->myExec();
}

// ---- A plain dialog ----

void openBaseDialog(QWidget *parent)
{
    CBaseDialog dialog(parent, Qt::WindowFlags());
    dialog.setWindowTitle(u"Zyx Grainlab 6"_qs);
    auto *text = new QLabel(galleryText(Text::Quit));
    text->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setProperty("highlighted", true);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto *layout = new QVBoxLayout(&dialog);
    layout->addWidget(text);
    layout->addWidget(new QCheckBox(galleryText(Text::DoNotAskAgain)));
    layout->addWidget(buttons);
    dialog.exec();
}

// ---- File dialogs ----

CNativeDialogs &dialogs()
{
    return Singleton<CNativeDialogs>::instance();
}

QList<Exhibit> fileDialogs(const QString &folder)
{
    return {
        {u"dialog-open-file"_qs,
         u"Open one file"_qs,
         {},
         [folder](QWidget *parent) { dialogs().getOpenFileName(parent, {}, folder, images(), nullptr, painted); }},
        {u"dialog-open-files"_qs,
         u"Open several files"_qs,
         {},
         [folder](QWidget *parent) { dialogs().getOpenFileNames(parent, {}, folder, images(), nullptr, painted); }},
        {u"dialog-folder"_qs,
         u"Choose a folder"_qs,
         {},
         [folder](QWidget *parent) { dialogs().getExistingDirectory(parent, {}, folder, painted); }},
        {u"dialog-save-file"_qs,
         u"Save a raw file: the name gets the filter’s extension"_qs,
         {},
         [folder](QWidget *parent) {
             dialogs().getSaveFileName(parent, {}, folder + u"/mountain-lake.nef", images(), nullptr, painted);
         }},
        {u"dialog-file-browser"_qs,
         u"Choose a folder or a file"_qs,
         {},
         [folder](QWidget *parent) { dialogs().getFileBrowserDirectory(parent, true, {}, folder, {}); },
         isFileBrowserPainted()},
    };
}

} // namespace

QList<Exhibit> dialogExhibits(const QString &photoFolder)
{
    QList<Exhibit> exhibits{
        {u"dialog-about"_qs, u"About box"_qs, {}, &openAboutBox},
        {u"dialog-about-licenses"_qs, u"About box, licences"_qs, {}, &openLicenses},
        {u"dialog-about-suffix"_qs, u"About box of a product with a suffix"_qs, {}, &openAboutBoxWithSuffix},
        {u"dialog-about-plug-in"_qs, u"About box of the plug-in in a host"_qs, {}, &openHostAboutBox},
        {u"dialog-base"_qs, u"A dialog of the product"_qs, {}, &openBaseDialog},
    };
    exhibits += fileDialogs(photoFolder);
    return exhibits;
}
