// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/look/customzyxappstyle.h"

#include "utilsDll/frame/Assertions.h"

#include <QtCore/QHash>
#include <QtCore/QVariant>
#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtGui/QPixmap>
#include <QtWidgets/QCommonStyle>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTreeView>

#include <algorithm>

namespace ZYX_zglv6 {

namespace {

constexpr const char *extensionArrow[] = {
    "8 5 3 1", // width, height, colours, characters a pixel
    "  c None", // in no row
    ". c #808080", //
    "+ c none", //
    "..++..++", //
    "+..++..+", //
    "++..++..", //
    "+..++..+", //
    "..++..++",
};

QImage mirroredExtensionArrow()
{
    const QImage arrow(extensionArrow);
    return arrow.convertToFormat(QImage::Format_ARGB32).mirrored(/*horizontal=*/true, /*vertical=*/false);
}

const QPixmap &mirroredExtensionPixmap()
{
    static const QPixmap pixmap = QPixmap::fromImage(mirroredExtensionArrow());
    return pixmap;
}

bool isRightToLeft(const QStyleOption *option)
{
    return option ? option->direction == Qt::RightToLeft : QGuiApplication::isRightToLeft();
}

using ButtonTable = QHash<QString, const QWidget *>;

bool addButton(ButtonTable &table, const QWidget *button)
{
    if (!button || table.contains(button->objectName())) {
        return false;
    }
    table.insert(button->objectName(), button);
    return true;
}

/*! A QObject is enough: at the time of destroyed() a button is nothing more. */
bool removeButton(ButtonTable &table, const QObject *button)
{
    if (!button) {
        return false;
    }
    const auto entry = table.constFind(button->objectName());
    if (entry == table.cend()) {
        return false;
    }
    ASSERT(entry.value() == button);
    table.erase(entry); // another button's entry, too: the name is what counts
    return true;
}

bool isShiftDisabled(const ButtonTable &table, const QWidget &widget)
{
    const QString name = widget.objectName();
    if (name.isEmpty()) {
        return false; // even with the property or under the empty key: no name, no exception
    }
    return table.contains(name) || widget.property(CustomZyxAppStyle::disableButtonShiftPropertyName()).isValid();
}

} // namespace

class CustomZyxAppStyle::Pimpl
{
public:
    const QTableView internalView; // never shown
    const QPixmap extensionPixmap{extensionArrow};
    ButtonTable nonShiftedButtons; // by object name
};

CustomZyxAppStyle::CustomZyxAppStyle()
    : pimpl(std::make_unique<Pimpl>())
{
    setBaseStyle(new QCommonStyle); // takes it over
}

CustomZyxAppStyle::~CustomZyxAppStyle() = default;

void CustomZyxAppStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                      const QWidget *widget) const
{
    if (element != PE_FrameFocusRect) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void CustomZyxAppStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                                    const QWidget *widget) const
{
    // compared for identity: a derived table view with its own meta object is painted as a plain one, too
    if (option && option->type == QStyleOption::SO_ViewItem
        && (!widget || widget->metaObject() != pimpl->internalView.metaObject())) {
        widget = &pimpl->internalView;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

int CustomZyxAppStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    switch (metric) {
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return widget && isShiftDisabled(pimpl->nonShiftedButtons, *widget)
            ? 0
            : QProxyStyle::pixelMetric(metric, option, widget);
    case PM_SubMenuOverlap:
        return -1;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int CustomZyxAppStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                                 QStyleHintReturn *returnData) const
{
    switch (hint) {
    case SH_ProgressDialog_CenterCancelButton:
    case SH_Menu_AllowActiveAndDisabled:
    case SH_MenuBar_AltKeyNavigation:
    case SH_ComboBox_ListMouseTracking:
    case SH_Menu_MouseTracking:
    case SH_MenuBar_MouseTracking:
        return 1;
    case SH_Slider_AbsoluteSetButtons:
        return Qt::LeftButton;
    case SH_Menu_SubMenuPopupDelay:
        return 300; // milliseconds
    case SH_ItemView_PaintAlternatingRowColorsForEmptyArea:
        return qobject_cast<const QTreeView *>(widget) ? 0 : QProxyStyle::styleHint(hint, option, widget, returnData);
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

QPixmap CustomZyxAppStyle::standardPixmap(StandardPixmap standardPixmap, const QStyleOption *option,
                                          const QWidget *widget) const
{
    if (standardPixmap != SP_ToolBarHorizontalExtensionButton) {
        return QProxyStyle::standardPixmap(standardPixmap, option, widget);
    }
    return isRightToLeft(option) ? mirroredExtensionPixmap() : pimpl->extensionPixmap;
}

const char *CustomZyxAppStyle::disableButtonShiftPropertyName()
{
    return "disableButtonShiftProperty";
}

void CustomZyxAppStyle::disableButtonShift(const QWidget *button, bool disable)
{
    if (!button) {
        return;
    }
    ASSERT(!button->objectName().isEmpty()); // goes on: a name that comes later takes the entry along
    if (!disable) {
        if (removeButton(pimpl->nonShiftedButtons, button)) {
            QObject::disconnect(button, nullptr, this, nullptr); // of this one, whoever had the entry
        }
        return;
    }
    if (addButton(pimpl->nonShiftedButtons, button)) {
        connect(button, &QObject::destroyed, this, &CustomZyxAppStyle::onNonShiftedButtonDestroy);
        connect(button, &QObject::objectNameChanged, this, &CustomZyxAppStyle::onNonShiftedButtonObjectNameChanged);
    }
}

/*! The object name of \a p can still be read in destroyed(). */
void CustomZyxAppStyle::onNonShiftedButtonDestroy(QObject *p)
{
    removeButton(pimpl->nonShiftedButtons, p);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the exported signature
void CustomZyxAppStyle::onNonShiftedButtonObjectNameChanged(QString strNewName)
{
    const auto *button = qobject_cast<QWidget *>(sender());
    if (!button) {
        return;
    }
    ButtonTable &buttons = pimpl->nonShiftedButtons;
    const auto entry = std::find(buttons.cbegin(), buttons.cend(), button); // its key is the old name
    ASSERT_X_RETURN(entry != buttons.cend(), "renamed button is not registered");
    buttons.erase(entry);
    QObject::disconnect(button, nullptr, this, nullptr);
    if (!strNewName.isEmpty()) {
        disableButtonShift(button, true); // if the name is in use, the button stays out from here on
    }
}

} // namespace ZYX_zglv6
