// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "look/SourceTexts.h"

#include <QtCore/QRegularExpression>

namespace {

const QString literal = QStringLiteral(R"re((?:\s*"(?:[^"\\\n]|\\.)*"\s*)+)re"); // adjacent ones are one

QString withoutComments(const QString &code)
{
    static const QRegularExpression form(
        QStringLiteral(R"re("(?:[^"\\\n]|\\.)*"|'(?:[^'\\\n]|\\.)*'|//[^\n]*|/\*.*?\*/)re"),
        QRegularExpression::DotMatchesEverythingOption);
    QString result;
    qsizetype end = 0;
    for (const QRegularExpressionMatch &match : form.globalMatch(code)) {
        const bool isComment = match.capturedView().startsWith(u'/');
        result += code.sliced(end, match.capturedStart() - end);
        result += isComment ? QStringLiteral(" ") : match.captured();
        end = match.capturedEnd();
    }
    return result + code.sliced(end);
}

QChar unescaped(QChar letter)
{
    switch (letter.unicode()) {
    case 'n':
        return u'\n';
    case 't':
        return u'\t';
    default:
        return letter; // a quote or a backslash
    }
}

QString valueOf(const QString &literals)
{
    static const QRegularExpression form(QStringLiteral(R"re("((?:[^"\\\n]|\\.)*)")re"));
    QString value;
    for (const QRegularExpressionMatch &match : form.globalMatch(literals)) {
        const QString body = match.captured(1);
        for (qsizetype i = 0; i < body.size(); ++i) {
            value += body[i] == u'\\' ? unescaped(body[++i]) : body[i];
        }
    }
    return value;
}

} // namespace

QList<SourceText> sourceTextsIn(const QString &code)
{
    static const QRegularExpression calls(
        QStringLiteral(R"re((?:(\w+)\s*::\s*)?\b(?:tr|QT_TR_NOOP)\s*\((%1)(?=[,)])|)re"
                       R"re(\b(?:translate|QT_TRANSLATE_NOOP)\s*\((%1),(%1)(?=[,)]))re")
            .arg(literal));
    QList<SourceText> texts;
    for (const QRegularExpressionMatch &match : calls.globalMatch(withoutComments(code))) {
        const bool isTr = match.hasCaptured(2);
        texts.append({isTr ? match.captured(1) : valueOf(match.captured(3)), valueOf(match.captured(isTr ? 2 : 4))});
    }
    return texts;
}
