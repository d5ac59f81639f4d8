// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "baseDialogs/ProposedFileName_p.h"

#include "utilsDll/frame/SharedConstants.h"

#include <QtCore/QFileInfo>

namespace ZYX_zglv6 {

namespace {

/*! With its dot; empty if there is none. */
QString extensionOf(const QString &name)
{
    const QString suffix = QFileInfo(name).suffix();
    if (suffix.isEmpty() || suffix.startsWith(u'.')) {
        return suffix;
    }
    return u'.' + suffix;
}

/*! The letters behind the first "*.": "tiff". A digit ends them, so "*.3fr" has none. */
QString firstExtension(const QString &filter)
{
    const qsizetype begin = filter.indexOf(u"*.") + 2; // without one: 1
    qsizetype end = begin;
    while (end < filter.size() && filter.at(end).isLetter()) {
        ++end;
    }
    return filter.mid(begin, end - begin);
}

} // namespace

QString proposedFileName(const QString &name, const QString &filter)
{
    const QString extension = extensionOf(name);
    // A part of a raw extension counts too, and so does none at all.
    if (!rawFilter.contains(extension, Qt::CaseInsensitive)) {
        return name;
    }
    QString base = name;
    if (!extension.isEmpty()) {
        base.remove(name.lastIndexOf(extension, -1, Qt::CaseInsensitive), extension.size());
    }
    const QString first = firstExtension(filter);
    return first.isEmpty() ? base : QString(base + u'.' + first);
}

} // namespace ZYX_zglv6
