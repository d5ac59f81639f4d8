// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "embeddedData/XmlElement.h"

inline const QString presetsPath = u":/presets/default.xml"_qs;

/*! The 148 ids of films, camera settings and designers' looks, in the order of the file. */
QStringList knownIds();

/*! The vocabulary of the processing engine. */
QStringList parameterNames();

/*! The built-in presets as they are read from the resources. */
const XmlElement &presets();

/*! All presets but the first three. */
QList<XmlElement> looks();

/*! An empty element if there is no such preset. */
XmlElement preset(const QString &id);

QMap<QString, QString> params(const XmlElement &preset);
/*! True if each of \a ids is that of a look. */
bool areLooks(const QStringList &ids);

QStringList tags(const XmlElement &preset);

/*! The bytes of the resource \a path; empty if it can't be read. */
QByteArray content(const QString &path);
