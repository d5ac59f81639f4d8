// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"

#include "interfaces/SerializableImpl.h"

#include <QtWidgets/QSlider>

namespace Snippets {

//! [widget]
class CStrengthSlider final : public QSlider, public SerializableUiImpl
{
public:
    explicit CStrengthSlider(const QString &guid, QWidget *parent = nullptr)
        : QSlider(Qt::Horizontal, parent)
    {
        setProperty("GUID", guid); // unique in its form, and the same in every run
    }

    QByteArray serializeExclusive() const override
    {
        return QByteArray::number(value());
    }

    void deserializeExclusive(const QByteArray &bytes) override
    {
        setValue(bytes.toInt());
    }

    QObject *getObject() override
    {
        return this;
    }

    const QObject *getObject() const override
    {
        return this;
    }
};
//! [widget]

//! [blob]
void copyState(const SerializableUiImpl &from, SerializableUiImpl &to)
{
    const QByteArray blob = from.serialize(); // what a host keeps in its settings
    to.deserialize(blob, false, QString());
}
//! [blob]

int strengthAfterRestart(int strength)
{
    CStrengthSlider before(u"grain.strength"_qs);
    before.setValue(strength);
    CStrengthSlider after(u"grain.strength"_qs);
    copyState(before, after);
    return after.value();
}

} // namespace Snippets
