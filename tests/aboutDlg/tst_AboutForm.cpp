// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "aboutDlg/AboutBox.h"

#include <QtCore/QMetaEnum>
#include <QtCore/QScopeGuard>
#include <QtSvgWidgets/QSvgWidget>
#include <QtWidgets/QApplication>
#include <QtWidgets/QBoxLayout>

using namespace ZYX_zglv6;

namespace {

QString nameOf(QSizePolicy::Policy policy)
{
    return QString::fromUtf8(QMetaEnum::fromType<QSizePolicy::Policy>().valueToKey(policy));
}

QString linesOf(const QLayout &layout, qsizetype depth);

QString lineOf(QLayoutItem &item, qsizetype depth)
{
    const QString indent(2 * depth, u' ');
    if (QLayout *layout = item.layout()) {
        return linesOf(*layout, depth);
    }
    if (const QSpacerItem *spacer = item.spacerItem()) {
        const QSizePolicy policy = spacer->sizePolicy();
        return u"%1space %2x%3 %4 %5\n"_qs.arg(indent)
            .arg(item.sizeHint().width())
            .arg(item.sizeHint().height())
            .arg(nameOf(policy.horizontalPolicy()), nameOf(policy.verticalPolicy()));
    }
    const QWidget *widget = item.widget();
    const bool hasOwnName = !widget->objectName().startsWith(u"CRetinaToolButton");
    QString line = indent + QString::fromUtf8(widget->metaObject()->className());
    line += hasOwnName && !widget->objectName().isEmpty() ? u' ' + widget->objectName() : QString();
    const QString parent = widget->parentWidget()->objectName();
    return line + u" on "_qs + parent + u'\n' + (widget->layout() ? linesOf(*widget->layout(), depth + 1) : QString());
}

/*! The layout, with its margins, and all below it. */
QString linesOf(const QLayout &layout, qsizetype depth)
{
    const QMargins margins = layout.contentsMargins();
    QString text = u"%1%2 %3 %4,%5,%6,%7\n"_qs.arg(QString(2 * depth, u' '))
                       .arg(QString::fromUtf8(layout.metaObject()->className()), layout.objectName())
                       .arg(margins.left())
                       .arg(margins.top())
                       .arg(margins.right())
                       .arg(margins.bottom());
    for (int i = 0; i < layout.count(); ++i) {
        text += lineOf(*layout.itemAt(i), depth + 1);
    }
    return text;
}

} // namespace

class tst_AboutForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dialog_hasItsNameAndSize();
    void dialogLayout_givesAllRoomToThePages();
    void bar_standsLeftOfThePages();
    void aboutPage_isLaidOutAsDesigned();
    void licensesPage_isLaidOutAsDesigned();
    void pages_areTwoAndTheFirstIsShown();

    void widgets_haveTheirSizes_data();
    void widgets_haveTheirSizes();
    void frame_isNotDrawn();
    void versionBesideTheLogo_isSetAsDesigned();
    void labels_takeLinks_data();
    void labels_takeLinks();
    void labels_doNotWrap();
    void description_isWithoutFrameAndOpensLinks();
    void images_haveTheSizesOfTheirFiles();
    void form_hasNoOtherParts();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_AboutForm::dialog_hasItsNameAndSize()
{
    const CAboutDlg dialog(nullptr, {});
    QCOMPARE(dialog.objectName(), u"aboutDlg"_qs);
    QCOMPARE(dialog.size(), QSize(541, 485));
    QCOMPARE(dialog.minimumSize(), QSize(541, 485));
    QCOMPARE(dialog.maximumSize(), QSize(541, 485));
}

void tst_AboutForm::dialogLayout_givesAllRoomToThePages()
{
    const CAboutDlg dialog(nullptr, {});
    auto *layout = qobject_cast<QHBoxLayout *>(dialog.layout());
    QVERIFY(layout);
    QCOMPARE(layout->objectName(), u"horizontalLayout"_qs);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->itemAt(0)->layout()->objectName(), u"leftBarLayout"_qs);
    QCOMPARE(layout->itemAt(1)->widget(), &AboutBox::part<QStackedWidget>(dialog, u"stackedWidget"_qs));
    QCOMPARE(layout->stretch(0), 0);
    QCOMPARE(layout->stretch(1), 1);
}

void tst_AboutForm::bar_standsLeftOfThePages()
{
    const CAboutDlg dialog(nullptr, {});
    QCOMPARE(linesOf(*dialog.layout()->itemAt(0)->layout(), 0), uR"(QHBoxLayout leftBarLayout 0,0,0,0
  QSvgWidget on aboutDlg
  space 0x0 Expanding Minimum
)"_qs);
}

void tst_AboutForm::aboutPage_isLaidOutAsDesigned()
{
    const CAboutDlg dialog(nullptr, {});
    const auto &page = AboutBox::part<QWidget>(dialog, u"aboutPage"_qs);
    QCOMPARE(page.metaObject()->className(), "QWidget");
    QCOMPARE(linesOf(*page.layout(), 0), uR"(QVBoxLayout verticalLayout 0,0,0,0
  QHBoxLayout horizontalLayout_5 0,0,0,0
    QHBoxLayout horizontalLayout_2 0,0,0,0
      QVBoxLayout verticalLayout_5 3,0,31,12
        space 8x378 Minimum Expanding
        CVerticalLabel leftCopyrightLabel on aboutPage
    QVBoxLayout verticalLayout_2 0,0,0,0
      QHBoxLayout horizontalLayout_3 0,0,0,0
        QVBoxLayout verticalLayout_4 0,50,0,0
          QFrame frame on aboutPage
            QHBoxLayout horizontalLayout_7 2,0,0,0
              QHBoxLayout logoImageLayout 0,0,0,8
                QSvgWidget on frame
                space 0x0 Expanding Minimum
              QLabel logoVersionLabel on frame
          space 20x14 Fixed Fixed
          QLabel sloganLabel on aboutPage
          space 20x26 Fixed Fixed
        space 40x20 Expanding Minimum
      QHBoxLayout horizontalLayout_6 0,0,0,0
        QVBoxLayout verticalLayout_6 0,0,0,0
          QLabel productNameLabel on aboutPage
          QLabel versionLabel on aboutPage
          QLabel zyxLinkLabel on aboutPage
          space 10x133 Minimum Expanding
        space 40x20 Expanding Minimum
        QVBoxLayout verticalLayout_7 0,0,25,21
          space 20x40 Minimum Expanding
          QHBoxLayout glLogoLayout 0,0,0,0
            QSvgWidget on aboutPage
            space 0x0 Expanding Minimum
  QWidget bottomWidget on aboutPage
    QHBoxLayout horizontalLayout_4 42,0,0,0
      QLabel copyrightTextLabel on bottomWidget
)"_qs);
}

void tst_AboutForm::licensesPage_isLaidOutAsDesigned()
{
    const CAboutDlg dialog(nullptr, {});
    const auto &page = AboutBox::part<QWidget>(dialog, u"licensesPage"_qs);
    QCOMPARE(page.metaObject()->className(), "QWidget");
    QCOMPARE(linesOf(*page.layout(), 0), uR"(QVBoxLayout verticalLayout_3 15,9,15,30
  CRetinaToolButton on licensesPage
  QTextBrowser description on licensesPage
)"_qs);
}

void tst_AboutForm::pages_areTwoAndTheFirstIsShown()
{
    const CAboutDlg dialog(nullptr, {});
    const auto &pages = AboutBox::part<QStackedWidget>(dialog, u"stackedWidget"_qs);
    QCOMPARE(pages.parentWidget(), &dialog);
    QCOMPARE(pages.count(), 2);
    QCOMPARE(pages.widget(0)->objectName(), u"aboutPage"_qs);
    QCOMPARE(pages.widget(1)->objectName(), u"licensesPage"_qs);
    QCOMPARE(pages.currentIndex(), 0);
}

void tst_AboutForm::widgets_haveTheirSizes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("smallest");
    QTest::addColumn<QSize>("largest");
    QTest::addColumn<QSizePolicy>("policy");

    const QSize none(0, 0);
    const QSize any(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    const QSizePolicy preferred(QSizePolicy::Preferred, QSizePolicy::Preferred);
    const QSizePolicy fixed(QSizePolicy::Fixed, QSizePolicy::Fixed);
    QTest::newRow("copyright line") << u"leftCopyrightLabel"_qs << QSize(10, 0) << QSize(10, QWIDGETSIZE_MAX)
                                    << QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    QTest::newRow("frame of the logo") << u"frame"_qs << QSize(201, 71) << QSize(201, 71) << preferred;
    QTest::newRow("version beside the logo") << u"logoVersionLabel"_qs << none << any << preferred;
    QTest::newRow("slogan") << u"sloganLabel"_qs << none << any << preferred;
    QTest::newRow("product name") << u"productNameLabel"_qs << none << any << fixed;
    QTest::newRow("version") << u"versionLabel"_qs << none << any << preferred;
    QTest::newRow("web site") << u"zyxLinkLabel"_qs << none << any << preferred;
    QTest::newRow("bottom") << u"bottomWidget"_qs << QSize(0, 123) << QSize(QWIDGETSIZE_MAX, 123)
                            << QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    QTest::newRow("legal line") << u"copyrightTextLabel"_qs << none << any << preferred;
}

void tst_AboutForm::widgets_haveTheirSizes()
{
    QFETCH(const QString, name);
    QFETCH(const QSizePolicy, policy);
    const CAboutDlg dialog(nullptr, {});
    const auto &widget = AboutBox::part<QWidget>(dialog, name);
    QTEST(widget.minimumSize(), "smallest");
    QTEST(widget.maximumSize(), "largest");
    QCOMPARE(widget.sizePolicy().horizontalPolicy(), policy.horizontalPolicy());
    QCOMPARE(widget.sizePolicy().verticalPolicy(), policy.verticalPolicy());
}

void tst_AboutForm::frame_isNotDrawn()
{
    const CAboutDlg dialog(nullptr, {});
    const auto &frame = AboutBox::part<QFrame>(dialog, u"frame"_qs);
    QCOMPARE(frame.frameShape(), QFrame::NoFrame);
    QCOMPARE(frame.frameShadow(), QFrame::Plain);
    QCOMPARE(frame.lineWidth(), 0);
}

void tst_AboutForm::versionBesideTheLogo_isSetAsDesigned()
{
    const auto restore = qScopeGuard([font = QApplication::font()] { QApplication::setFont(font); });
    QFont inherited;
    inherited.setStyleStrategy(QFont::NoAntialias);
    QApplication::setFont(inherited);
    const CAboutDlg dialog(nullptr, {});
    QCOMPARE(AboutBox::label(dialog, u"sloganLabel"_qs).font().styleStrategy(), QFont::NoAntialias);
    const QLabel &label = AboutBox::label(dialog, u"logoVersionLabel"_qs);
    QCOMPARE(label.lineWidth(), 0);
    QCOMPARE(label.alignment(), Qt::AlignLeft | Qt::AlignBottom);
    QCOMPARE(label.indent(), 0);
    QCOMPARE(label.font().styleStrategy(), QFont::PreferDefault); // its own
}

void tst_AboutForm::labels_takeLinks_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("takesLinks");
    QTest::addColumn<bool>("opensThem");

    QTest::newRow("product name") << u"productNameLabel"_qs << true << false;
    QTest::newRow("web site") << u"zyxLinkLabel"_qs << true << true;
    QTest::newRow("legal line") << u"copyrightTextLabel"_qs << true << false;
    QTest::newRow("version") << u"versionLabel"_qs << false << false;
    QTest::newRow("slogan") << u"sloganLabel"_qs << false << false;
}

void tst_AboutForm::labels_takeLinks()
{
    QFETCH(const QString, name);
    QFETCH(const bool, takesLinks);
    const CAboutDlg dialog(nullptr, {});
    const QLabel &label = AboutBox::label(dialog, name);
    QTEST(label.openExternalLinks(), "opensThem");
    const Qt::TextInteractionFlags withKeyboard = Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard;
    QCOMPARE(label.textInteractionFlags(),
             takesLinks ? withKeyboard : Qt::TextInteractionFlags(Qt::LinksAccessibleByMouse));
}

void tst_AboutForm::labels_doNotWrap()
{
    const CAboutDlg dialog(nullptr, {});
    const QList<QLabel *> labels = dialog.findChildren<QLabel *>();
    QCOMPARE(labels.size(), 7);
    for (const QLabel *label : labels) {
        QVERIFY2(!label->wordWrap(), qPrintable(label->objectName()));
    }
}

void tst_AboutForm::description_isWithoutFrameAndOpensLinks()
{
    const CAboutDlg dialog(nullptr, {});
    const QTextBrowser &description = AboutBox::description(dialog);
    QCOMPARE(description.frameShape(), QFrame::NoFrame);
    QCOMPARE(description.lineWidth(), 0);
    QVERIFY(description.openExternalLinks());
    QCOMPARE(description.toPlainText(), QString());
}

void tst_AboutForm::images_haveTheSizesOfTheirFiles()
{
    const CAboutDlg dialog(nullptr, {});
    const auto imageIn = [&dialog](const QString &layout) {
        return qobject_cast<QSvgWidget *>(dialog.findChild<QLayout *>(layout)->itemAt(0)->widget());
    };
    const QSvgWidget *bar = imageIn(u"leftBarLayout"_qs);
    QCOMPARE(bar->sizeHint(), QSvgWidget(u":/icons/orange-bar.svg"_qs).sizeHint());
    QCOMPARE(bar->minimumWidth(), bar->sizeHint().width());
    QCOMPARE(bar->maximumSize(), QSize(bar->sizeHint().width(), QWIDGETSIZE_MAX));
    const QSvgWidget *emblem = imageIn(u"glLogoLayout"_qs);
    QCOMPARE(emblem->sizeHint(), QSvgWidget(u":/icons/gl-s.svg"_qs).sizeHint());
    QCOMPARE(emblem->minimumSize(), emblem->sizeHint());
    QCOMPARE(emblem->maximumSize(), emblem->sizeHint());
    const QSvgWidget *logo = imageIn(u"logoImageLayout"_qs);
    QCOMPARE(logo->sizeHint(), QSvgWidget(u":/icons/logo.svg"_qs).sizeHint());
    QCOMPARE(logo->minimumSize(), QSize(0, 0));
    QCOMPARE(logo->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
}

void tst_AboutForm::form_hasNoOtherParts()
{
    const CAboutDlg dialog(nullptr, {});
    QStringList names;
    const QWidgetList widgets = dialog.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (!widget->objectName().startsWith(u"qt_") && !widget->objectName().startsWith(u"CRetinaToolButton")) {
            names += widget->objectName();
        }
    }
    names.removeAll(QString()); // images, and what Qt's own widgets are made of
    names.sort();
    QCOMPARE(names,
             (QStringList{u"aboutPage"_qs, u"bottomWidget"_qs, u"copyrightTextLabel"_qs, u"description"_qs, u"frame"_qs,
                          u"leftCopyrightLabel"_qs, u"licensesPage"_qs, u"logoVersionLabel"_qs, u"productNameLabel"_qs,
                          u"sloganLabel"_qs, u"stackedWidget"_qs, u"versionLabel"_qs, u"zyxLinkLabel"_qs}));
}

QTEST_MAIN(tst_AboutForm)

#include "tst_AboutForm.moc"
