// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/ErrorBoxCatcher.h"
#include "platform/ErrorBoxPrograms_unix.h"

namespace TestSupport {

namespace {

QString argumentAfter(const QStringList &call, const QString &option)
{
    const qsizetype index = call.indexOf(option);
    return index == -1 ? QString() : call.value(index + 1);
}

ErrorBox boxOf(const QStringList &call)
{
    return {argumentAfter(call, u"--title"_qs), argumentAfter(call, u"--text"_qs),
            quintptr(argumentAfter(call, u"--attach"_qs).toULongLong()), call.contains(u"--error"_qs),
            1 + call.count(u"--extra-button"_qs)};
}

} // namespace

class ErrorBoxCatcher::Pimpl
{
public:
    ErrorBoxPrograms programs;
};

ErrorBoxCatcher::ErrorBoxCatcher()
    : pimpl(std::make_unique<Pimpl>())
{
    pimpl->programs.add(u"zenity"_qs);
}

ErrorBoxCatcher::~ErrorBoxCatcher() = default;

QList<ErrorBox> ErrorBoxCatcher::boxes() const
{
    QList<ErrorBox> boxes;
    const QList<QStringList> calls = pimpl->programs.calls();
    for (const QStringList &call : calls) {
        boxes.append(boxOf(call));
    }
    return boxes;
}

} // namespace TestSupport
