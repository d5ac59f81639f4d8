// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

/*! An element of one of the embedded documents, as a reader sees it. */
struct XmlElement
{
    QString name;
    QMap<QString, QString> attributes;
    QString text; // of its own, without that of its children
    QList<XmlElement> children;

    /*! The first child of that name; an empty element if there is none. */
    XmlElement child(const QString &childName) const;
    QList<XmlElement> childrenOf(const QString &childName) const;
    QStringList childNames() const;

    /*! The attribute \a attribute of each child, in order. */
    QStringList values(const QString &attribute) const;
};

/*! The root of the resource \a path; an element without a name if it can't be read. */
XmlElement readXml(const QString &path);
