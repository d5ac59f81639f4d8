// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "aboutDlg/AboutForm_p.h"

#include "uiControls/VerticalLabel.h"
#include "utilsDll/frame/ProductData_p.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QDialog>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QTextBrowser>

namespace ZYX_zglv6 {

namespace {

constexpr int byLayout = -1; // a margin that the layout chooses

// A label takes the colour of its links from no sheet; the application's blue can't be read on black.
constexpr QLatin1StringView linkStyle("<style>a { color: #ce7044; }</style>");

template <typename Object>
Object *named(Object *object, const QString &name)
{
    object->setObjectName(name);
    return object;
}

template <typename Layout>
Layout *createLayout(const QString &name)
{
    return named(new Layout, name);
}

QSpacerItem *verticalSpace(int width, int height)
{
    return new QSpacerItem(width, height, QSizePolicy::Minimum, QSizePolicy::Expanding);
}

QSpacerItem *horizontalSpace()
{
    return new QSpacerItem(40, 20, QSizePolicy::Expanding, QSizePolicy::Minimum);
}

void makeLinksAccessible(QLabel *label)
{
    label->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
}

} // namespace

void AboutForm::setUp(QDialog *dialog)
{
    named(dialog, u"aboutDlg"_qs);
    dialog->resize(541, 485);
    dialog->setFixedSize(541, 485);

    auto *layout = named(new QHBoxLayout(dialog), u"horizontalLayout"_qs);
    layout->setContentsMargins(0, 0, 0, 0);
    leftBarLayout = createLayout<QHBoxLayout>(u"leftBarLayout"_qs);
    leftBarLayout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(leftBarLayout);
    stackedWidget = named(new QStackedWidget(dialog), u"stackedWidget"_qs);
    addAboutPage();
    addLicensesPage();
    layout->addWidget(stackedWidget);
    layout->setStretch(1, 1);

    setTexts(dialog);
    stackedWidget->setCurrentWidget(aboutPage);
    QMetaObject::connectSlotsByName(dialog);
}

void AboutForm::addAboutPage()
{
    aboutPage = named(new QWidget, u"aboutPage"_qs);
    auto *layout = named(new QVBoxLayout(aboutPage), u"verticalLayout"_qs);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *columns = createLayout<QHBoxLayout>(u"horizontalLayout_5"_qs);
    columns->addLayout(createCopyrightColumn());
    columns->addLayout(createMainColumn());
    layout->addLayout(columns);
    layout->addWidget(createBottomWidget());
    stackedWidget->addWidget(aboutPage);
}

QHBoxLayout *AboutForm::createCopyrightColumn()
{
    leftCopyrightLabel = named(new CVerticalLabel(aboutPage), u"leftCopyrightLabel"_qs);
    leftCopyrightLabel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    leftCopyrightLabel->setFixedWidth(10);

    auto *column = createLayout<QVBoxLayout>(u"verticalLayout_5"_qs);
    column->setContentsMargins(3, byLayout, 31, 12);
    column->addItem(verticalSpace(8, 378));
    column->addWidget(leftCopyrightLabel);
    auto *layout = createLayout<QHBoxLayout>(u"horizontalLayout_2"_qs);
    layout->addLayout(column);
    return layout;
}

QVBoxLayout *AboutForm::createMainColumn()
{
    auto *layout = createLayout<QVBoxLayout>(u"verticalLayout_2"_qs);
    layout->addLayout(createTitleRow());
    layout->addLayout(createProductRow());
    return layout;
}

QHBoxLayout *AboutForm::createTitleRow()
{
    sloganLabel = named(new QLabel(aboutPage), u"sloganLabel"_qs);
    sloganLabel->setWordWrap(false);
    aboveSlogan = verticalSpace(13, 17);
    belowSlogan = verticalSpace(13, 27);

    verticalLayout_4 = createLayout<QVBoxLayout>(u"verticalLayout_4"_qs);
    verticalLayout_4->setContentsMargins(byLayout, 50, byLayout, byLayout);
    verticalLayout_4->addWidget(createLogoFrame());
    verticalLayout_4->addItem(aboveSlogan);
    verticalLayout_4->addWidget(sloganLabel);
    verticalLayout_4->addItem(belowSlogan);
    auto *row = createLayout<QHBoxLayout>(u"horizontalLayout_3"_qs);
    row->addLayout(verticalLayout_4);
    row->addItem(horizontalSpace());
    return row;
}

QFrame *AboutForm::createLogoFrame()
{
    auto *frame = named(new QFrame(aboutPage), u"frame"_qs);
    frame->setFixedSize(201, 71);
    frame->setFrameShape(QFrame::NoFrame);
    frame->setFrameShadow(QFrame::Plain);
    frame->setLineWidth(0);

    logoVersionLabel = named(new QLabel(frame), u"logoVersionLabel"_qs);
    QFont font;
    font.setStyleStrategy(QFont::PreferDefault);
    logoVersionLabel->setFont(font);
    logoVersionLabel->setLineWidth(0);
    logoVersionLabel->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    logoVersionLabel->setWordWrap(false);
    logoVersionLabel->setIndent(0);

    auto *layout = named(new QHBoxLayout(frame), u"horizontalLayout_7"_qs);
    layout->setContentsMargins(2, 0, 0, 0);
    logoImageLayout = createLayout<QHBoxLayout>(u"logoImageLayout"_qs);
    logoImageLayout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(logoImageLayout);
    layout->addWidget(logoVersionLabel);
    return frame;
}

QHBoxLayout *AboutForm::createProductRow()
{
    auto *row = createLayout<QHBoxLayout>(u"horizontalLayout_6"_qs);
    row->addLayout(createProductColumn());
    row->addItem(horizontalSpace());
    row->addLayout(createEmblemColumn());
    return row;
}

QVBoxLayout *AboutForm::createProductColumn()
{
    productNameLabel = named(new QLabel(aboutPage), u"productNameLabel"_qs);
    productNameLabel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    makeLinksAccessible(productNameLabel);
    versionLabel = named(new QLabel(aboutPage), u"versionLabel"_qs);
    zyxLinkLabel = named(new QLabel(aboutPage), u"zyxLinkLabel"_qs);
    zyxLinkLabel->setOpenExternalLinks(true);
    makeLinksAccessible(zyxLinkLabel);

    auto *column = createLayout<QVBoxLayout>(u"verticalLayout_6"_qs);
    column->addWidget(productNameLabel);
    column->addWidget(versionLabel);
    column->addWidget(zyxLinkLabel);
    column->addItem(verticalSpace(10, 133));
    return column;
}

QVBoxLayout *AboutForm::createEmblemColumn()
{
    glLogoLayout = createLayout<QHBoxLayout>(u"glLogoLayout"_qs);
    glLogoLayout->setContentsMargins(0, 0, 0, 0);
    auto *column = createLayout<QVBoxLayout>(u"verticalLayout_7"_qs);
    column->setContentsMargins(byLayout, byLayout, 25, 21);
    column->addItem(verticalSpace(20, 40));
    column->addLayout(glLogoLayout);
    return column;
}

QWidget *AboutForm::createBottomWidget()
{
    auto *bottom = named(new QWidget(aboutPage), u"bottomWidget"_qs);
    bottom->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    bottom->setFixedHeight(123);

    copyrightTextLabel = named(new QLabel(bottom), u"copyrightTextLabel"_qs);
    makeLinksAccessible(copyrightTextLabel);
    auto *layout = named(new QHBoxLayout(bottom), u"horizontalLayout_4"_qs);
    layout->setContentsMargins(42, 0, 0, 0);
    layout->addWidget(copyrightTextLabel);
    return bottom;
}

void AboutForm::addLicensesPage()
{
    licensesPage = named(new QWidget, u"licensesPage"_qs);
    description = named(new QTextBrowser(licensesPage), u"description"_qs);
    description->setFrameShape(QFrame::NoFrame);
    description->setLineWidth(0);
    description->setOpenExternalLinks(true);

    verticalLayout_3 = named(new QVBoxLayout(licensesPage), u"verticalLayout_3"_qs);
    verticalLayout_3->setContentsMargins(15, 9, 15, 30);
    verticalLayout_3->addWidget(description);
    stackedWidget->addWidget(licensesPage);
}

void AboutForm::setTexts(QDialog *dialog)
{
    dialog->setWindowTitle(QCoreApplication::translate("aboutDlg", "About Zyx Grainlab"));
    sloganLabel->setText(QCoreApplication::translate("aboutDlg", "The look of real film."));
    zyxLinkLabel->setText(linkStyle + u"<a href=\"%1\">"_qs + webHost() + u"</a>"_qs);
    // The label does not wrap: each line ends by a mark. The address of the last link is the product's name, %1 again.
    copyrightTextLabel->setText(
        linkStyle
        + QCoreApplication::translate(
            "aboutDlg",
            "%1 is a trademark of Zyx Labs. This software is protected<br>by copyright law and by international "
            "treaties."
            "<br>Parts of it may be covered by patents: see <a href=\"%2\">patents and notices</a>.<br><br>"
            "<a href=\"%1\">Read the licenses of the third-party software in this product.</a>"));
}

} // namespace ZYX_zglv6
