// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtCore/QString>
#include <QtWidgets/QProxyStyle>

#include <memory>

namespace ZYX_zglv6 {

/*!
    What the applications' look needs and a style sheet can't change: the shift of pressed buttons, focus rectangles,
    the painting of item views, the arrow of a tool bar that is too short, and some hints. All else is QCommonStyle's.

    The library never installs it; QApplication::setStyle() takes it over. It needs a QApplication from its constructor
    on, and the main thread only.

    A button keeps its content in place when pressed after disableButtonShift(), or if it has a dynamic property of the
    name disableButtonShiftPropertyName() with any valid value. Either way it needs an object name.
*/
class UTILSDLL_EXPORT CustomZyxAppStyle : public QProxyStyle
{
    Q_OBJECT

public:
    CustomZyxAppStyle();
    ~CustomZyxAppStyle() override;

    /*! Draws no focus rectangles (PE_FrameFocusRect); all else as the base style. */
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;

    /*! Draws item view elements as those of a plain QTableView, whatever \a widget is; all else as the base style. */
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;

    /*! No shift for the buttons told above, and -1 for PM_SubMenuOverlap; all else as the base style. */
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;

    /*! Follows the mouse in menus and lists, and lets a click on a slider's groove jump there, among others. */
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr, const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;

    /*!
        A double chevron for SP_ToolBarHorizontalExtensionButton, in the direction of \a option or, without one, of the
        application; all else as the base style.
    */
    QPixmap standardPixmap(StandardPixmap standardPixmap, const QStyleOption *option,
                           const QWidget *widget = nullptr) const override;

    /*! "disableButtonShiftProperty". */
    static const char *disableButtonShiftPropertyName();

    /*!
        Turns the shift of \a button off or on again, under its object name, which is followed when it changes. All
        widgets of that name share the answer, and only the first one that asks for it is registered. A button without a
        name is a failed assertion and keeps its shift. A null \a button is ignored; no ownership is taken.
    */
    void disableButtonShift(const QWidget *button, bool disable);

private Q_SLOTS:
    void onNonShiftedButtonDestroy(QObject *p);
    void onNonShiftedButtonObjectNameChanged(QString strNewName);

private:
    class Pimpl;
    const std::unique_ptr<Pimpl> pimpl;
};

} // namespace ZYX_zglv6
