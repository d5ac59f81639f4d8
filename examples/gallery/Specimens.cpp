// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Specimens.h"

#include "SpecimenMakers.h"

#include <QtCore/QRegularExpression>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

using Widget = std::unique_ptr<QWidget>;

/*! A label that a sheet gives a picture to, by its name, has no text over it. */
void leaveToThePicture(QWidget *widget)
{
    static const QRegularExpression picture(u"(Icon|Image|Loading|Graph[A-Z]*|Shadow|Mark)$"_qs);
    auto *label = qobject_cast<QLabel *>(widget);
    if (label && picture.match(label->objectName()).hasMatch()) {
        label->clear();
        label->setMinimumSize(viewSize / 3);
    }
}

/*! Null without a \a make. */
Widget newWidget(const SelectorPart &part, const std::function<QWidget *()> &make)
{
    if (!make) {
        return nullptr;
    }
    Widget widget(make());
    widget->setObjectName(part.name);
    leaveToThePicture(widget.get());
    for (auto property = part.properties.cbegin(); property != part.properties.cend(); ++property) {
        widget->setProperty(property.key().toUtf8().constData(), property.value());
    }
    return widget;
}

void setAppearance(QWidget *widget, Appearance appearance)
{
    widget->setEnabled(appearance != Appearance::Disabled);
    widget->setAttribute(Qt::WA_UnderMouse, appearance == Appearance::Hover);
    if (auto *button = qobject_cast<QAbstractButton *>(widget)) {
        button->setCheckable(button->isCheckable() || appearance == Appearance::Checked);
        button->setChecked(appearance == Appearance::Checked);
        button->setDown(appearance == Appearance::Pressed);
    }
    if (auto *box = qobject_cast<QGroupBox *>(widget)) {
        box->setChecked(appearance != Appearance::Unchecked);
    }
}

void putInto(QWidget *surrounding, Widget widget)
{
    if (auto *bar = qobject_cast<QToolBar *>(surrounding)) {
        bar->addWidget(widget.release());
        return;
    }
    auto *layout = new QVBoxLayout(surrounding);
    layout->setSizeConstraint(QLayout::SetMinimumSize); // also of a class that has a size of its own
    layout->addWidget(widget.release());
}

/*! What brings its parts with it. */
bool isWhole(const SelectorPart &part)
{
    static const QStringList types{u"QMessageBox"_qs, u"QTableView"_qs, u"QComboBox"_qs, u"CComboBox"_qs};
    return types.contains(part.type);
}

/*! What is shown of it: the last part, or an outer one that brings its parts with it. */
Selector::const_iterator shownPart(const Selector &selector)
{
    const auto whole = std::find_if(selector.cbegin(), selector.cend(), &isWhole);
    return whole == selector.cend() ? selector.cend() - 1 : whole;
}

} // namespace

Widget newSpecimen(const Selector &selector, Appearance appearance)
{
    const auto inner = shownPart(selector);
    Widget widget = newWidget(*inner, specimenMakers(inner->type).filled);
    if (widget) {
        setAppearance(widget.get(), appearance);
    }
    for (auto part = std::make_reverse_iterator(inner); widget && part != selector.crend(); ++part) {
        Widget surrounding = newWidget(*part, specimenMakers(part->type).bare);
        if (surrounding) {
            putInto(surrounding.get(), std::move(widget));
        }
        widget = std::move(surrounding);
    }
    return widget;
}
