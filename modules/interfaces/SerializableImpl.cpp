// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "interfaces/SerializableImpl.h"

#include "interfaces/StateMap_p.h"

#include "utilsDll/frame/Assertions.h"
#include "utilsDll/frame/LoggerInterface.h"

#include <QtCore/QDataStream>
#include <QtCore/QIODevice>
#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtWidgets/QWidget>

using namespace ZYX_zglv6;

namespace {

/*! The descendants of \a form that take part, in the order of the tree; guarded, as restoring one may delete others. */
QList<QPointer<QWidget>> partsOf(const QObject *form)
{
    QList<QPointer<QWidget>> parts;
    const QList<QWidget *> descendants = form->findChildren<QWidget *>();
    for (QWidget *descendant : descendants) {
        const auto *part = dynamic_cast<ISerializableUiInterface *>(descendant);
        if (part != nullptr && part->serializable()) {
            parts.append(descendant);
        }
    }
    return parts;
}

void restore(ISerializableUiInterface &part, const QMap<QString, QVariant> &states)
{
    const auto state = states.constFind(part.id());
    if (state != states.constEnd()) {
        part.deserializeExclusive(state->toByteArray());
    }
}

} // namespace

QByteArray SerializableUiImpl::serialize() const
{
    QMap<QString, QVariant> states;
    for (QWidget *widget : partsOf(getObject())) {
        const auto *part = dynamic_cast<ISerializableUiInterface *>(widget);
        if (part == nullptr) {
            continue;
        }
        const QString partId = part->id();
        ASSERT_X_RETURN_BUT_GO_ON(
            !states.contains(partId),
            u"GUID already exists. Property in form need to be changed. GUID: %1"_qs.arg(partId).toUtf8().constData());
        states.insert(partId, part->serializeExclusive());
    }
    // The form itself is stored even if it is not serializable().
    const QString ownId = id();
    ASSERT_X_RETURN_BUT_GO_ON(!states.contains(ownId), "GUID already exists. Property in form need to be changed");
    states.insert(ownId, serializeExclusive());

    QByteArray data;
    QDataStream stream(&data, QIODevice::WriteOnly);
    stream.setVersion(stateStreamVersion);
    stream << states;
    return data;
}

void SerializableUiImpl::deserialize(const QByteArray &data, bool /*flag*/, const QString & /*text*/)
{
    QDataStream stream(data);
    stream.setVersion(stateStreamVersion);
    const QMap<QString, QVariant> states = readStateMap(stream);
    if (stream.status() != QDataStream::Ok && !data.isEmpty()) {
        ZYX_LOG('W', "The stored state is damaged");
    }
    const QPointer<QObject> form(getObject());
    for (QWidget *widget : partsOf(form)) {
        if (auto *part = dynamic_cast<ISerializableUiInterface *>(widget)) {
            restore(*part, states);
        }
    }
    if (form != nullptr) {
        restore(*this, states);
    }
}

bool SerializableUiImpl::equal(const QByteArray &first, const QByteArray &second) const
{
    return first == second;
}

QString SerializableUiImpl::id() const
{
    const auto *object = dynamic_cast<const QObject *>(this);
    const QVariant guid = object != nullptr ? object->property("GUID") : QVariant();
    return guid.isValid() ? guid.toString() : QString::number(reinterpret_cast<quintptr>(this), 10);
}

bool SerializableUiImpl::serializable() const
{
    const auto *object = dynamic_cast<const QObject *>(this);
    const QVariant isWanted = object != nullptr ? object->property("Serializable") : QVariant();
    return !isWanted.isValid() || isWanted.toBool();
}
