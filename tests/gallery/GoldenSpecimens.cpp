// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "GoldenSpecimens.h"

#include "DialogPicture.h"
#include "ToolButtonLooks.h"

#include "uiControls/IconViewer.h"
#include "utilsDll/dialogs/MessageBox.h"
#include "utilsDll/dialogs/ProgressPainter.h"
#include "utilsDll/dialogs/SettingsPushButton.h"
#include "utilsDll/eventLoop/DelayedCall.h"
#include "utilsDll/look/SharedUtils.h"

#include <QtGui/QGuiApplication>
#include <QtTest/QTest>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>

using namespace ZYX_zglv6;

namespace {

constexpr QRgb ground = 0xff535353;

using Maker = std::function<void(QWidget *stage)>;

QImage imageOf(const QPixmap &picture)
{
    return picture.toImage().convertToFormat(QImage::Format_RGB32);
}

/*! What \a fill puts on a stage of \a size that wears the sheets. */
QImage painted(const QSize &size, const Maker &fill)
{
    QWidget stage;
    stage.setFixedSize(size);
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(ground));
    stage.setPalette(palette);
    setCustomStyleSheet(&stage, QssLoadBaseSheets, {});
    fill(&stage);
    stage.show();
    return QTest::qWaitForWindowExposed(&stage) ? imageOf(stage.grab()) : QImage();
}

GoldenSpecimen onStage(const QString &name, const QSize &size, const Maker &fill)
{
    return {name, [size, fill] { return painted(size, fill); }};
}

// ---- Boxes ----

using BoxOperation = decltype(&CMessageBox::critical);

/*! The part of a box where its lines begin, which has the icon and the strip, and no letters. */
GoldenSpecimen box(const QString &name, BoxOperation operation, bool showIcon)
{
    return {name, [operation, showIcon] {
                const QPixmap picture = pictureOfDialog([operation, showIcon] {
                    operation(nullptr, {}, {}, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok, showIcon);
                });
                const int width = qRound(120 * picture.devicePixelRatio());
                const int left = QGuiApplication::isRightToLeft() ? picture.width() - width : 0;
                return imageOf(picture.copy(left, 0, width, picture.height()));
            }};
}

// ---- Viewers ----

QPixmap coloured(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y, qRgb(255 * x / size.width(), 255 * y / size.height(), 128));
        }
    }
    return QPixmap::fromImage(image);
}

void addViewer(QWidget *stage, bool isEnabled)
{
    auto *viewer = new CIconViewer(stage);
    viewer->setGeometry(stage->rect().adjusted(10, 10, -10, -10));
    viewer->setPixmap(coloured(QSize(120, 80)));
    viewer->setEnabled(isEnabled);
}

// ---- Buttons ----

GoldenSpecimen toolButton(const QString &name, const std::function<void(CRetinaToolButton &)> &setUp)
{
    return onStage(u"tool-button-"_qs + name, QSize(60, 60), [setUp](QWidget *stage) {
        CRetinaToolButton *button = newArrowButton(stage);
        button->setGeometry(5, 5, 50, 50);
        setUp(*button);
    });
}

GoldenSpecimen pushButton(const QString &name, bool isHighlighted)
{
    return onStage(name, QSize(110, 50), [isHighlighted](QWidget *stage) {
        auto *button = new QPushButton(stage);
        button->setProperty("highlighted", isHighlighted);
        button->setFocusPolicy(Qt::NoFocus);
        button->setGeometry(10, 10, 90, 29);
    });
}

/*! The row's look is a matter of sheets. */
QString switchSheet()
{
    return u"#settingsPushButtonButton { border: none; background: #1b1b1b;"
           u" image: url(:/icons/settingsPanel/correction-switch-off-default.png); }"
           u"#settingsPushButtonButton:checked {"
           u" image: url(:/icons/settingsPanel/correction-switch-on-default.png); }"_qs;
}

GoldenSpecimen setting(const QString &name, bool isChecked)
{
    return onStage(name, QSize(170, 40), [isChecked](QWidget *stage) {
        auto *row = new CSettingsPushButton(stage);
        row->setStyleSheet(switchSheet());
        row->setButtonCheckable(true);
        row->checkButton(isChecked);
        auto *layout = new QHBoxLayout(stage);
        layout->setContentsMargins(5, 5, 5, 5);
        layout->addWidget(row);
    });
}

// ---- Overlays ----

/*! The label has no say in the width here, as its letters would. */
void addProgress(QWidget *stage)
{
    auto *overlay = new ProgressPainter(stage, stage);
    overlay->findChild<QLabel *>(u"processLabel"_qs)->clear();
    overlay->setFixedWidth(100);
    overlay->show();
    stage->show();
    auto *animation = overlay->findChild<AnimatedLabel *>();
    Singleton<CDelayedCall>::instance().discard(animation, nullptr); // the first frame stays
}

void addZoom(QWidget *stage)
{
    auto *overlay = new ZoomPainter(stage, stage);
    overlay->showZoom(u"100"_qs, 0);
    overlay->findChild<QLabel *>(u"zoomLabel"_qs)->clear();
    Singleton<CDelayedCall>::instance().discard(overlay, nullptr); // its second may pass before it is painted
}

} // namespace

QList<GoldenSpecimen> goldenSpecimens()
{
    using Tool = CRetinaToolButton;
    return {
        box(u"box-critical"_qs, &CMessageBox::critical, true),
        box(u"box-information"_qs, &CMessageBox::information, true),
        box(u"box-warning"_qs, &CMessageBox::warning, true),
        box(u"box-without-icon"_qs, &CMessageBox::warning, false),
        onStage(u"viewer"_qs, QSize(100, 80), [](QWidget *stage) { addViewer(stage, true); }),
        onStage(u"viewer-disabled"_qs, QSize(100, 80), [](QWidget *stage) { addViewer(stage, false); }),
        toolButton(u"normal"_qs, [](Tool &) {}),
        toolButton(u"hover"_qs, &hover),
        toolButton(u"pressed"_qs, [](Tool &button) { button.setPressState(true); }),
        toolButton(u"disabled-action"_qs, &disableAction),
        pushButton(u"button"_qs, false),
        pushButton(u"button-highlighted"_qs, true),
        setting(u"setting-off"_qs, false),
        setting(u"setting-on"_qs, true),
        onStage(u"overlay-progress"_qs, QSize(120, 90), &addProgress),
        onStage(u"overlay-zoom"_qs, QSize(120, 60), &addZoom),
    };
}
