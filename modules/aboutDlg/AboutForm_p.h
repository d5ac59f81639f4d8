// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

class CVerticalLabel;
class QDialog;
class QFrame;
class QHBoxLayout;
class QLabel;
class QSpacerItem;
class QStackedWidget;
class QTextBrowser;
class QVBoxLayout;
class QWidget;

namespace ZYX_zglv6 {

/*!
    The widgets of the about box, under the object names that the style sheets know them by. All belong to the dialog.
    Numbers of pixels are the design's.
*/
class AboutForm
{
public:
    void setUp(QDialog *dialog);

    QHBoxLayout *leftBarLayout = nullptr;
    QStackedWidget *stackedWidget = nullptr;

    QWidget *aboutPage = nullptr;
    CVerticalLabel *leftCopyrightLabel = nullptr;
    QHBoxLayout *logoImageLayout = nullptr;
    QLabel *logoVersionLabel = nullptr;
    QVBoxLayout *verticalLayout_4 = nullptr;
    QSpacerItem *aboveSlogan = nullptr;
    QLabel *sloganLabel = nullptr;
    QSpacerItem *belowSlogan = nullptr;
    QLabel *productNameLabel = nullptr;
    QLabel *versionLabel = nullptr;
    QLabel *zyxLinkLabel = nullptr; // its address is %1
    QHBoxLayout *glLogoLayout = nullptr;
    QLabel *copyrightTextLabel = nullptr;

    QWidget *licensesPage = nullptr;
    QVBoxLayout *verticalLayout_3 = nullptr;
    QTextBrowser *description = nullptr;

private:
    void addAboutPage();
    QHBoxLayout *createCopyrightColumn();
    QVBoxLayout *createMainColumn();
    QHBoxLayout *createTitleRow();
    QFrame *createLogoFrame();
    QHBoxLayout *createProductRow();
    QVBoxLayout *createProductColumn();
    QVBoxLayout *createEmblemColumn();
    QWidget *createBottomWidget();
    void addLicensesPage();
    void setTexts(QDialog *dialog);
};

} // namespace ZYX_zglv6
