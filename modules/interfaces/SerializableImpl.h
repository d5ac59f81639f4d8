// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

class QObject;

/*! What can put its state into bytes and take it back. Never destroyed through this interface. */
struct UTILSDLL_EXPORT ISerializableInterface
{
    virtual QByteArray serialize() const = 0;
    virtual void deserialize(const QByteArray &data, bool flag, const QString &text) = 0;
    virtual bool equal(const QByteArray &first, const QByteArray &second) const = 0;
    virtual QString id() const = 0;

protected:
    ~ISerializableInterface() = default;
};

/*! A widget as a part of a form that stores its state. */
struct UTILSDLL_EXPORT ISerializableUiInterface : public ISerializableInterface
{
    /*! This widget's own state, without its descendants. */
    virtual QByteArray serializeExclusive() const = 0;
    virtual void deserializeExclusive(const QByteArray &data) = 0;
    virtual bool serializable() const = 0;

protected:
    ~ISerializableUiInterface() = default;
};

/*!
    Base of widgets with a state that outlives the program: class CRow : public QWidget, public
    SerializableUiImpl.

    Stores the state of a whole form, that is of the widget and of all its descendants with
    ISerializableUiInterface, in one blob, and restores it. Widgets are matched by identifier, never by place, so
    a blob survives changes of the layout: each widget of a form must carry a dynamic property "GUID" with a text
    that is unique in that form. A dynamic property "Serializable" that is false keeps a descendant out.

    The blob is a QMap<QString, QVariant> of serializeExclusive() by id(), as QDataStream writes it. Main thread
    only.
*/
class UTILSDLL_EXPORT SerializableUiImpl : public ISerializableUiInterface
{
public:
    /*! State of the form. Of two widgets with one identifier the later one's, with a failed assertion reported. */
    QByteArray serialize() const override;

    /*!
        Restores what \a data holds: a widget without an entry keeps its state, and an entry without a widget is
        ignored. Of data that can't be read nothing is restored, with a warning in the log. \a flag and \a text are not
        used.
    */
    void deserialize(const QByteArray &data, bool flag, const QString &text) override;

    /*! True if both hold the same bytes; null and empty are equal. */
    bool equal(const QByteArray &first, const QByteArray &second) const override;

    /*! The property "GUID"; without one this object's address, which nothing finds again after a restart. */
    QString id() const override;

    /*! The property "Serializable"; true without one. */
    bool serializable() const override;

    /*! The widget itself. */
    virtual QObject *getObject() = 0;
    virtual const QObject *getObject() const = 0;

protected:
    ~SerializableUiImpl() = default;
};
