// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "aboutDlg/AboutDlg.h"

#include "aboutDlg/AboutForm_p.h"
#include "aboutDlg/LicensesPage_p.h"
#include "baseDialogs/WidgetFromHWND.h"
#include "uiControls/RetinaToolButton.h"
#include "uiControls/VerticalLabel.h"
#include "utilsDll/frame/Assertions.h"
#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/look/GuiUtils.h"
#include "utilsDll/look/LanguageManager.h"
#include "utilsDll/look/RedirectionLinks.h"
#include "utilsDll/look/SharedUtils.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtGui/QScreen>
#include <QtSvg/QSvgRenderer>
#include <QtSvgWidgets/QSvgWidget>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QTextBrowser>

namespace ZYX_zglv6 {

namespace {

constexpr int majorVersion = 6;
constexpr int minorVersion = 4;
constexpr int patchVersion = 0;
constexpr int buildNumber = 314;

QSvgWidget *addImage(QBoxLayout *layout, const QString &path)
{
    auto *image = new QSvgWidget(path);
    layout->addWidget(image);
    layout->addStretch();
    return image;
}

QString fontSizeSheet(int pixels)
{
    return u"font-size:%1px"_qs.arg(pixels);
}

QString versionText()
{
    return u"%1 %2.%3.%4 / %5 %6 / %7"_qs.arg(
        QCoreApplication::translate("CAboutDlg", "Version"), QString::number(majorVersion),
        QString::number(minorVersion), QString::number(patchVersion), QCoreApplication::translate("CAboutDlg", "Build"),
        QString::number(buildNumber), QCoreApplication::translate("CAboutDlg", "64 bits"));
}

QString linkTo(CRedirectionLinks::zyxLinkType page)
{
    return CRedirectionLinks::get(page, CLanguageManager::getInstance());
}

/*! The link around the last sentence gets the product's name as its address: onLinkClicked() knows it by that. */
QString legalLine(const QString &form)
{
    QString text = form.arg(u"Zyx Grainlab"_qs).arg(linkTo(CRedirectionLinks::linkPatents));
    if (text.contains(u"%3")) {
        text = text.arg(QString());
    }
    return text;
}

QString acknowledgement()
{
    return QCoreApplication::translate(
        "CAboutDlg",
        "This product uses copyrighted material of others, among it the Qt libraries, log4cplus, zlib and Minizip, the "
        "Roboto, Open Sans and Maven Pro fonts, Tabler Icons, and calibration data derived from the Lensfun database. "
        "It remains the property of its authors and is used under the licenses that follow.%1Names of film products "
        "are trademarks of their respective owners. They only describe the look that a simulation comes close to; "
        "their owners have no part in this product.%1");
}

void writeCopyrightLine(CVerticalLabel *label)
{
    label->setText(u"\u00a9 2026 Zyx Labs"_qs);
    label->setStyleSheet(u"background:black;color: #683a22;font-size: 8px;font-family: \"Tahoma\";"_qs);
    label->setLeftMargin(0);
    label->setTopMargin(0);
    QFont font = label->font();
    font.setLetterSpacing(QFont::AbsoluteSpacing, 1.05);
    label->setFont(font);
}

} // namespace

CAboutDlg::CAboutDlg(QWidget *parent, QFlags<Qt::WindowType> flags)
    : CBaseDialog(parent, flags)
    , m_form(std::make_unique<AboutForm>())
{
    m_form->setUp(this);
    addImages();
    fillLabels();
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint);
    installEventFilter(this);
    addBackButton();
    m_form->stackedWidget->setCurrentWidget(m_form->aboutPage);
    writeCopyrightLine(m_form->leftCopyrightLabel);
    connect(m_form->copyrightTextLabel, &QLabel::linkActivated, this, &CAboutDlg::onLinkClicked);
}

CAboutDlg::~CAboutDlg() = default;

void CAboutDlg::addImages()
{
    addImage(m_form->logoImageLayout, u":/icons/logo.svg"_qs);
    m_form->logoImageLayout->setContentsMargins(0, 0, 0, 8);
    QSvgWidget *bar = addImage(m_form->leftBarLayout, u":/icons/orange-bar.svg"_qs);
    bar->setFixedWidth(bar->renderer()->defaultSize().width());
    QSvgWidget *emblem = addImage(m_form->glLogoLayout, u":/icons/gl-s.svg"_qs);
    emblem->setFixedSize(emblem->renderer()->defaultSize());
}

void CAboutDlg::fillLabels()
{
    m_form->aboveSlogan->changeSize(20, 14, QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_form->belowSlogan->changeSize(20, 26, QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_form->verticalLayout_4->invalidate(); // does not see that by itself
    m_form->logoVersionLabel->setText(QString::number(majorVersion));
    m_form->logoVersionLabel->setStyleSheet(fontSizeSheet(45));
    m_form->sloganLabel->setStyleSheet(fontSizeSheet(23));
    m_form->productNameLabel->setText(productDisplayName);
    m_form->versionLabel->setText(versionText());
    m_form->zyxLinkLabel->setText(m_form->zyxLinkLabel->text().arg(linkTo(CRedirectionLinks::linkHome)));
    m_form->copyrightTextLabel->setText(legalLine(m_form->copyrightTextLabel->text()));
}

void CAboutDlg::addBackButton()
{
    auto *button
        = new CRetinaToolButton(u":/icons/arrows/left-icon-default.svg"_qs, u":/icons/arrows/left-icon-hover.svg"_qs,
                                u":/icons/arrows/left-icon-onpressed.svg"_qs, m_form->licensesPage);
    button->setFixedSize(27, 27);
    button->setIconSize(CRetinaToolButton::defaultIconSize());
    button->setAccessibleName(QCoreApplication::translate("CAboutDlg", "Back"));
    connect(button, &QAbstractButton::clicked, this, &CAboutDlg::onBack);
    m_form->verticalLayout_3->insertWidget(0, button);
    setTabOrder(button, m_form->description);
    m_form->description->setAccessibleName(QCoreApplication::translate("CAboutDlg", "Licenses"));
}

void CAboutDlg::myExec()
{
    setModal(false);
    show();
}

void CAboutDlg::updateProductName(const QString &suffix)
{
    if (!suffix.isEmpty()) {
        m_form->productNameLabel->setText(m_form->productNameLabel->text() + u' ' + suffix);
    }
}

bool CAboutDlg::isPointInside(const QPoint &globalPoint) const
{
    return rect().contains(mapFromGlobal(globalPoint));
}

bool CAboutDlg::eventFilter(QObject *watched, QEvent *event)
{
    return QDialog::eventFilter(watched, event);
}

void CAboutDlg::onBack()
{
    switchView(false);
}

void CAboutDlg::onLinkClicked(QString link) // NOLINT(performance-unnecessary-value-param): as the signal has it
{
    if (link.startsWith(u"http")) {
        QDesktopServices::openUrl(QUrl(link)); // without a browser there is nothing to do
    } else {
        switchView(true);
    }
}

void CAboutDlg::switchView(bool showLicenses)
{
    m_form->stackedWidget->setCurrentWidget(showLicenses ? m_form->licensesPage : m_form->aboutPage);
    if (!showLicenses || !m_form->description->toPlainText().isEmpty()) {
        return;
    }
    const QString dir = get3rdPartyLicensesDir();
    if (dir.isEmpty()) {
        return;
    }
    if (QDir(dir).exists()) {
        m_form->description->setHtml(createLicensesPage(acknowledgement(), readLicenseFiles(dir)));
    }
    setWidgetFullTransparency(m_form->description); // the sheet's ground shows through
}

/*! The widget of the host's window is never deleted: that would take the dialog along while it may be in use. */
CPhotoshopAboutDlg::CPhotoshopAboutDlg(quint64 parentWindow)
    : CAboutDlg(new CWidgetFromHWND(reinterpret_cast<HWND>(parentWindow)), {}) // NOLINT(performance-no-int-to-ptr)
{
    setWindowFlags(windowFlags() & ~Qt::FramelessWindowHint);
}

CPhotoshopAboutDlg::~CPhotoshopAboutDlg() = default;

void CPhotoshopAboutDlg::myExec()
{
    exec();
}

void CPhotoshopAboutDlg::showEvent(QShowEvent *event)
{
    CBaseDialog::showEvent(event); // the first one alone
    setWindowIcon(zyxAppIcon());
    const QScreen *current = screen();
    ASSERT_X_RETURN(current, "current_screen is null in ZYX_NAMESPACE::CPhotoshopAboutDlg::showEvent");
    const QPoint centre = current->availableGeometry().center(); // the host's window is no reliable reference
    move(centre.x() - width() / 2, centre.y() - height() / 2);
}

} // namespace ZYX_zglv6
