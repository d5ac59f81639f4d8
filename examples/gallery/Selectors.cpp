// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Selectors.h"

#include <QtCore/QRegularExpression>

#include <algorithm>

namespace {

SelectorPart readPart(QString text)
{
    SelectorPart part;
    static const QRegularExpression property(u"\\[([A-Za-z]+)=\"([^\"]*)\"\\]"_qs);
    for (auto match = property.match(text); match.hasMatch(); match = property.match(text)) {
        part.properties.insert(match.captured(1), match.captured(2));
        text.remove(match.capturedStart(), match.capturedLength());
    }
    text = text.section(u':', 0, 0);
    part.type = text.section(u'#', 0, 0);
    part.name = text.section(u'#', 1);
    return part;
}

Selector readSelector(const QString &text)
{
    Selector selector;
    for (const QString &part : text.simplified().split(u' ', Qt::SkipEmptyParts)) {
        selector.append(readPart(part));
    }
    return selector;
}

QStringList statesOf(QString text)
{
    static const QRegularExpression part(u"::[a-z-]+"_qs);
    return text.remove(part).section(u':', 1).split(u':', Qt::SkipEmptyParts);
}

void addTo(QList<StyledControl> &controls, const QString &text)
{
    const Selector selector = readSelector(text);
    if (selector.isEmpty()) {
        return;
    }
    auto control = std::find_if(controls.begin(), controls.end(),
                                [&selector](const StyledControl &other) { return other.selector == selector; });
    if (control == controls.end()) {
        control = controls.insert(controls.end(), {selector, {}});
    }
    control->states += statesOf(text.simplified());
    control->states.removeDuplicates();
}

} // namespace

QList<StyledControl> controlsOf(const QString &sheet)
{
    static const QRegularExpression comment(u"/\\*.*?\\*/"_qs, QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression rule(u"([^{}]+)\\{[^{}]*\\}"_qs);
    QList<StyledControl> controls;
    auto match = rule.globalMatch(QString(sheet).remove(comment));
    while (match.hasNext()) {
        for (const QString &text : match.next().captured(1).split(u',')) {
            addTo(controls, text);
        }
    }
    return controls;
}

QString textOf(const Selector &selector)
{
    QStringList parts;
    for (const SelectorPart &part : selector) {
        QString text = part.name.isEmpty() ? part.type : QString(part.type + u"#" + part.name);
        for (auto property = part.properties.cbegin(); property != part.properties.cend(); ++property) {
            text += u"["_qs + property.key() + u"=" + property.value() + u"]";
        }
        parts.append(text);
    }
    return parts.join(u' ');
}
