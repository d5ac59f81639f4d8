// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Exhibits.h"
#include "Stage.h"
#include "ToolButtonLooks.h"

#include "uiControls/IconViewer.h"
#include "uiControls/VerticalLabel.h"
#include "utilsDll/dialogs/SettingsPushButton.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QBoxLayout>

using namespace ZYX_zglv6;

namespace {

constexpr QSize viewerStage(180, 180);
constexpr int viewerMargin = 30; // room for the shadow
constexpr QSize smallImage(60, 40);
constexpr QSize largeImage(600, 400);

/*! A name and a title, and what is done to a fresh widget. */
template <typename Widget>
struct Row
{
    QLatin1StringView name;
    QLatin1StringView title;
    std::function<void(Widget &)> setUp;
};

void centre(QWidget *widget, QWidget *stage)
{
    auto *layout = new QHBoxLayout(stage);
    layout->addWidget(widget, 0, Qt::AlignCenter);
}

// ---- Viewers ----

void showSmall(CIconViewer &viewer)
{
    viewer.setPixmap(photograph(smallImage));
}

void showLarge(CIconViewer &viewer)
{
    viewer.setPixmap(photograph(largeImage));
}

void showIcon(CIconViewer &viewer)
{
    viewer.setIcon(u":/icons/toolBar/settings-default.svg"_qs);
    viewer.setMandatoryImageSize(QSize(64, 64)); // a vector image has no size
}

const QList<Row<CIconViewer>> &viewerRows()
{
    using View = CIconViewer;
    static const QList<Row<View>> rows{
        {QLatin1StringView("empty"), QLatin1StringView("Viewer, empty"), [](View &) {}},
        {QLatin1StringView("small"), QLatin1StringView("Viewer, small image"), &showSmall},
        {QLatin1StringView("large"), QLatin1StringView("Viewer, large image"), &showLarge},
        {QLatin1StringView("expanded"), QLatin1StringView("Viewer, small image, expanded"),
         [](View &v) {
             showSmall(v);
             v.setExpandContent(true);
         }},
        {QLatin1StringView("ignore-aspect"), QLatin1StringView("Viewer, aspect ratio ignored"),
         [](View &v) {
             showLarge(v);
             v.setAspectRatio(Qt::IgnoreAspectRatio);
         }},
        {QLatin1StringView("expand-aspect"), QLatin1StringView("Viewer, aspect ratio kept by expanding"),
         [](View &v) {
             showLarge(v);
             v.setAspectRatio(Qt::KeepAspectRatioByExpanding);
         }},
        {QLatin1StringView("disabled"), QLatin1StringView("Viewer, disabled"),
         [](View &v) {
             showLarge(v);
             v.setEnabled(false);
         }},
        {QLatin1StringView("disabled-not-gray"), QLatin1StringView("Viewer, disabled, not grayed"),
         [](View &v) {
             showLarge(v);
             v.setEnabled(false);
             v.setShowDisableState(false);
         }},
        {QLatin1StringView("without-shadow"), QLatin1StringView("Viewer, without shadow"),
         [](View &v) {
             showLarge(v);
             v.setShowShadow(false);
         }},
        {QLatin1StringView("text"), QLatin1StringView("Viewer, with a text"),
         [](View &v) {
             showLarge(v);
             v.setText(u"12 / 36"_qs);
         }},
        {QLatin1StringView("icon"), QLatin1StringView("Viewer, vector icon"), &showIcon},
        {QLatin1StringView("icon-disabled"), QLatin1StringView("Viewer, vector icon, disabled"),
         [](View &v) {
             showIcon(v);
             v.setEnabled(false);
         }},
        {QLatin1StringView("mandatory-size"), QLatin1StringView("Viewer, size of its own"),
         [](View &v) {
             showLarge(v);
             v.setMandatoryImageSize(QSize(100, 30));
         }},
    };
    return rows;
}

std::unique_ptr<QWidget> newViewer(const std::function<void(CIconViewer &)> &setUp)
{
    std::unique_ptr<QWidget> stage = newStage(viewerStage);
    auto *viewer = new CIconViewer(stage.get());
    viewer->setGeometry(stage->rect().adjusted(viewerMargin, viewerMargin, -viewerMargin, -viewerMargin));
    setUp(*viewer);
    return stage;
}

// ---- Tool buttons ----

QString shortText()
{
    return QCoreApplication::translate("CMessageBox", "Rotate");
}

void addText(CRetinaToolButton &button, Qt::ToolButtonStyle style)
{
    button.setText(shortText());
    button.setToolButtonStyle(style);
    if (style == Qt::ToolButtonTextBesideIcon) {
        button.setMinimumWidth(150);
    }
}

const QList<Row<CRetinaToolButton>> &toolButtonRows()
{
    using Tool = CRetinaToolButton;
    static const QList<Row<Tool>> rows{
        {QLatin1StringView("normal"), QLatin1StringView("Tool button"), [](Tool &) {}},
        {QLatin1StringView("hover"), QLatin1StringView("Tool button, under the mouse"), &hover},
        {QLatin1StringView("pressed"), QLatin1StringView("Tool button, pressed"),
         [](Tool &t) {
             t.setDown(true);
             t.setPressState(true);
         }},
        {QLatin1StringView("forced-press"), QLatin1StringView("Tool button, press forced"),
         [](Tool &t) { t.forcePress(true); }},
        {QLatin1StringView("forced-disable"), QLatin1StringView("Tool button, pressed, disabling forced"),
         [](Tool &t) {
             t.forcePress(true);
             t.forceDisable(true);
         }},
        {QLatin1StringView("disabled-action"), QLatin1StringView("Tool button, its action disabled"), &disableAction},
        {QLatin1StringView("disabled"), QLatin1StringView("Tool button, disabled"),
         [](Tool &t) { t.setEnabled(false); }},
        {QLatin1StringView("text-beside"), QLatin1StringView("Tool button, text beside the icon"),
         [](Tool &t) { addText(t, Qt::ToolButtonTextBesideIcon); }},
        {QLatin1StringView("text-beside-disabled"), QLatin1StringView("Tool button, text beside the icon, disabled"),
         [](Tool &t) {
             addText(t, Qt::ToolButtonTextBesideIcon);
             t.setEnabled(false);
         }},
        {QLatin1StringView("text-under"), QLatin1StringView("Tool button, text under the icon"),
         [](Tool &t) { addText(t, Qt::ToolButtonTextUnderIcon); }},
    };
    return rows;
}

void addToolButton(QWidget *stage, const std::function<void(CRetinaToolButton &)> &setUp)
{
    CRetinaToolButton *button = newArrowButton(stage);
    button->setAccessibleName(QCoreApplication::translate("CAboutDlg", "Back"));
    setUp(*button);
    stage->layout()->addWidget(button);
    stage->layout()->setAlignment(button, Qt::AlignCenter);
}

std::unique_ptr<QWidget> newToolButton(const std::function<void(CRetinaToolButton &)> &setUp)
{
    std::unique_ptr<QWidget> stage = newStage(QSize(180, 90));
    new QHBoxLayout(stage.get());
    addToolButton(stage.get(), setUp);
    return stage;
}

/*! The looks that have an image, beside each other. */
std::unique_ptr<QWidget> newToolButtons()
{
    std::unique_ptr<QWidget> stage = newStage(QSize(240, 70));
    new QHBoxLayout(stage.get());
    for (const Row<CRetinaToolButton> &row : toolButtonRows().first(3)) {
        addToolButton(stage.get(), row.setUp);
    }
    return stage;
}

// ---- Labels and settings ----

const QList<Row<CVerticalLabel>> &verticalLabelRows()
{
    using Label = CVerticalLabel;
    static const QList<Row<Label>> rows{
        {QLatin1StringView("plain"), QLatin1StringView("Vertical label"), [](Label &) {}},
        {QLatin1StringView("margins"), QLatin1StringView("Vertical label, with margins"),
         [](Label &l) {
             l.setLeftMargin(20);
             l.setTopMargin(10);
         }},
    };
    return rows;
}

std::unique_ptr<QWidget> newVerticalLabel(const std::function<void(CVerticalLabel &)> &setUp)
{
    std::unique_ptr<QWidget> stage = newStage(QSize(90, 180));
    auto *label = new CVerticalLabel(shortText() + u" · 90°"_qs, stage.get());
    label->setStyleSheet(u"font-size: 14px; background-color: #232323;"_qs);
    label->setFixedSize(40, 160);
    setUp(*label);
    centre(label, stage.get());
    return stage;
}

const QList<Row<CSettingsPushButton>> &settingsRows()
{
    using Setting = CSettingsPushButton;
    static const QList<Row<Setting>> rows{
        {QLatin1StringView("off"), QLatin1StringView("Settings push button, off"), [](Setting &) {}},
        {QLatin1StringView("on"), QLatin1StringView("Settings push button, on"),
         [](Setting &s) { s.checkButton(true); }},
        {QLatin1StringView("disabled"), QLatin1StringView("Settings push button, disabled"),
         [](Setting &s) { s.setEnabled(false); }},
        {QLatin1StringView("disabled-on"), QLatin1StringView("Settings push button, on, disabled"),
         [](Setting &s) {
             s.checkButton(true);
             s.setEnabled(false);
         }},
        {QLatin1StringView("wide"), QLatin1StringView("Settings push button, wide column"),
         [](Setting &s) { s.adjustWidth(180); }},
    };
    return rows;
}

std::unique_ptr<QWidget> newSetting(const std::function<void(CSettingsPushButton &)> &setUp)
{
    std::unique_ptr<QWidget> stage = newStage(QSize(260, 60));
    auto *setting = new CSettingsPushButton(stage.get());
    setting->init(QCoreApplication::translate("CMessageBox", "Don't save"));
    setting->setButtonCheckable(true);
    setUp(*setting);
    auto *layout = new QHBoxLayout(stage.get());
    layout->addWidget(setting);
    return stage;
}

template <typename Widget, typename Maker>
void append(QList<Exhibit> &exhibits, QLatin1StringView kind, const QList<Row<Widget>> &rows, Maker make)
{
    for (const Row<Widget> &row : rows) {
        exhibits.append(
            {u"widget-"_qs + kind + u'-' + row.name, row.title, [setUp = row.setUp, make] { return make(setUp); }, {}});
    }
}

} // namespace

QList<Exhibit> widgetExhibits()
{
    QList<Exhibit> exhibits;
    append(exhibits, QLatin1StringView("viewer"), viewerRows(), &newViewer);
    append(exhibits, QLatin1StringView("tool-button"), toolButtonRows(), &newToolButton);
    exhibits.append({u"widget-tool-buttons"_qs, u"Tool buttons"_qs, &newToolButtons, {}});
    append(exhibits, QLatin1StringView("vertical-label"), verticalLabelRows(), &newVerticalLabel);
    append(exhibits, QLatin1StringView("setting"), settingsRows(), &newSetting);
    return exhibits;
}
