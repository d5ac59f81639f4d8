// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "look/StyleSheetParser.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>

namespace StyleSheets {

namespace {

const QSet<QString> &knownProperties()
{
    static const QSet<QString> names{u"alternate-background-color"_qs,
                                     u"background"_qs,
                                     u"background-color"_qs,
                                     u"background-image"_qs,
                                     u"background-repeat"_qs,
                                     u"border"_qs,
                                     u"border-bottom"_qs,
                                     u"border-color"_qs,
                                     u"border-image"_qs,
                                     u"border-left"_qs,
                                     u"border-radius"_qs,
                                     u"border-right"_qs,
                                     u"border-style"_qs,
                                     u"border-top"_qs,
                                     u"border-width"_qs,
                                     u"button-layout"_qs,
                                     u"color"_qs,
                                     u"font-family"_qs,
                                     u"font-size"_qs,
                                     u"gridline-color"_qs,
                                     u"font-weight"_qs,
                                     u"height"_qs,
                                     u"image"_qs,
                                     u"left"_qs,
                                     u"margin"_qs,
                                     u"margin-top"_qs,
                                     u"max-height"_qs,
                                     u"max-width"_qs,
                                     u"messagebox-critical-icon"_qs,
                                     u"messagebox-information-icon"_qs,
                                     u"messagebox-question-icon"_qs,
                                     u"messagebox-warning-icon"_qs,
                                     u"min-height"_qs,
                                     u"min-width"_qs,
                                     u"outline"_qs,
                                     u"padding"_qs,
                                     u"padding-bottom"_qs,
                                     u"padding-left"_qs,
                                     u"padding-right"_qs,
                                     u"padding-top"_qs,
                                     u"right"_qs,
                                     u"selection-background-color"_qs,
                                     u"selection-color"_qs,
                                     u"show-decoration-selected"_qs,
                                     u"spacing"_qs,
                                     u"subcontrol-origin"_qs,
                                     u"subcontrol-position"_qs,
                                     u"text-align"_qs,
                                     u"width"_qs};
    return names;
}

const QSet<QString> &knownParts()
{
    static const QSet<QString> names{u"add-line"_qs,       u"add-page"_qs,   u"branch"_qs,      u"chunk"_qs,
                                     u"corner"_qs,         u"down-arrow"_qs, u"down-button"_qs, u"drop-down"_qs,
                                     u"groove"_qs,         u"handle"_qs,     u"indicator"_qs,   u"item"_qs,
                                     u"menu-indicator"_qs, u"pane"_qs,       u"section"_qs,     u"separator"_qs,
                                     u"sub-line"_qs,       u"sub-page"_qs,   u"tab"_qs,         u"title"_qs,
                                     u"up-arrow"_qs,       u"up-button"_qs};
    return names;
}

const QSet<QString> &knownStates()
{
    static const QSet<QString> names{u"checked"_qs,      u"closed"_qs,     u"disabled"_qs, u"focus"_qs,
                                     u"has-children"_qs, u"horizontal"_qs, u"hover"_qs,    u"indeterminate"_qs,
                                     u"on"_qs,           u"open"_qs,       u"pressed"_qs,  u"selected"_qs,
                                     u"unchecked"_qs,    u"vertical"_qs};
    return names;
}

QString withoutComments(const QString &text, QStringList &errors)
{
    static const QRegularExpression comment(u"/\\*.*?\\*/"_qs, QRegularExpression::DotMatchesEverythingOption);
    QString result = text;
    result.replace(comment, u" "_qs);
    for (const QString &mark : {u"/*"_qs, u"*/"_qs, u"//"_qs}) {
        if (result.contains(mark)) {
            errors.append(mark + u" outside a comment");
        }
    }
    return result;
}

void checkNames(const QRegularExpressionMatch &step, const QString &selector, QStringList &errors)
{
    const QString part = step.captured(u"part"_qs);
    if (!part.isEmpty() && !knownParts().contains(part)) {
        errors.append(u"unknown part in "_qs + selector);
    }
    for (const QString &state : step.captured(u"states"_qs).split(u':', Qt::SkipEmptyParts)) {
        if (!knownStates().contains(state)) {
            errors.append(u"unknown state in "_qs + selector);
        }
    }
}

void checkSelector(const QString &selector, QStringList &errors)
{
    // The type, the object name, a property, a part and the states, in this order.
    static const QRegularExpression form(u"^(?=.)([A-Z]\\w*)?(#[A-Za-z]\\w*)?(\\[\\w+=\"\\w+\"\\])?"
                                         "(::(?<part>[a-z-]+))?(?<states>(:[a-z-]+)*)$"_qs);
    for (const QString &step : selector.split(u' ')) {
        const QRegularExpressionMatch match = form.match(step);
        if (!match.hasMatch()) {
            errors.append(u"malformed selector: "_qs + selector);
        }
        checkNames(match, selector, errors);
    }
}

void checkValue(const Declaration &declaration, QStringList &errors)
{
    static const QRegularExpression hash(u"#[^\\s,);]*"_qs);
    static const QRegularExpression colour(u"^#([0-9a-fA-F]{3}|[0-9a-fA-F]{6})$"_qs);
    static const QRegularExpression wrong(u"[{}:]"_qs);
    static const QRegularExpression url(u"url\\((:/[\\w/.-]+|\":/[\\w/.()-]+\")\\)"_qs);
    static const QRegularExpression gradientStops(u"\\b(x1|y1|x2|y2|cx|cy|radius|fx|fy|stop):"_qs);
    QString value = declaration.value;
    value.replace(url, u"image"_qs);
    value.replace(gradientStops, QString());
    const bool isClosed = value.count(u'(') == value.count(u')') && value.count(u'"') % 2 == 0;
    if (value.isEmpty() || !isClosed || value.contains(wrong) || value.contains(u"url(")) {
        errors.append(u"malformed value: "_qs + declaration.property + u": " + declaration.value);
    }
    for (auto found = hash.globalMatch(value); found.hasNext();) {
        const QString candidate = found.next().captured();
        if (!colour.match(candidate).hasMatch()) {
            errors.append(u"no colour: "_qs + candidate);
        }
    }
}

QList<Declaration> declarationsIn(const QString &block, QStringList &errors)
{
    QList<Declaration> declarations;
    QStringList texts = block.split(u';');
    if (!texts.takeLast().trimmed().isEmpty()) {
        errors.append(u"no semicolon at the end of "_qs + block);
    }
    for (const QString &text : texts) {
        const qsizetype colon = text.indexOf(u':');
        const Declaration declaration{text.first(std::max<qsizetype>(colon, 0)).trimmed(),
                                      text.sliced(colon + 1).simplified()};
        if (!knownProperties().contains(declaration.property)) {
            errors.append(u"unknown property: "_qs + text.simplified());
        }
        checkValue(declaration, errors);
        declarations.append(declaration);
    }
    if (declarations.isEmpty()) {
        errors.append(u"empty rule"_qs);
    }
    return declarations;
}

QStringList selectorsIn(const QString &text, QStringList &errors)
{
    QStringList selectors;
    for (const QString &selector : text.split(u',')) {
        selectors.append(selector.simplified());
        checkSelector(selectors.last(), errors);
    }
    return selectors;
}

} // namespace

QStringList sheetNames()
{
    return {u"custom"_qs,   u"win"_qs,      u"menu"_qs,     u"toolBar"_qs,   u"previewArea"_qs,  u"sideBar"_qs,
            u"combobox"_qs, u"slider"_qs,   u"tools"_qs,    u"dialogs"_qs,   u"timeMachine"_qs,  u"extra-en"_qs,
            u"extra-de"_qs, u"extra-fr"_qs, u"extra-ja"_qs, u"essintial"_qs, u"crash_sender"_qs, u"printing"_qs};
}

QString sheetText(const QString &name)
{
    QFile file(u":/qss/%1.qss"_qs.arg(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

Sheet parse(const QString &text)
{
    Sheet sheet;
    const QString rules = withoutComments(text, sheet.errors);
    qsizetype position = 0;
    for (qsizetype open = rules.indexOf(u'{'); open >= 0; open = rules.indexOf(u'{', position)) {
        const qsizetype close = rules.indexOf(u'}', open);
        if (close < 0) {
            sheet.errors.append(u"rule without an end"_qs);
            return sheet;
        }
        const QStringList selectors = selectorsIn(rules.sliced(position, open - position), sheet.errors);
        const QString block = rules.sliced(open + 1, close - open - 1);
        sheet.rules.append({selectors, declarationsIn(block, sheet.errors)});
        position = close + 1;
    }
    if (!rules.sliced(position).trimmed().isEmpty()) {
        sheet.errors.append(u"behind the last rule: "_qs + rules.sliced(position).trimmed());
    }
    return sheet;
}

QString valueOf(const Sheet &sheet, const QString &selector, const QString &property)
{
    QString value;
    for (const Rule &rule : sheet.rules) {
        for (const Declaration &declaration : rule.declarations) {
            if (rule.selectors.contains(selector) && declaration.property == property) {
                value = declaration.value;
            }
        }
    }
    return value;
}

} // namespace StyleSheets
