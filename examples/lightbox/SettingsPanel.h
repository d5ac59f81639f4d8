// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "interfaces/SerializableImpl.h"

#include <QtWidgets/QWidget>

namespace ZYX_zglv6 {
class CSettingsPushButton;
} // namespace ZYX_zglv6

/*! The rows beside the photograph. Their state outlives the program as one blob: serialize() and deserialize(). */
class CSettingsPanel final : public QWidget, public SerializableUiImpl
{
    Q_OBJECT

public:
    explicit CSettingsPanel(QWidget *parent = nullptr);

    ZYX_zglv6::CSettingsPushButton *blackAndWhite() const;
    ZYX_zglv6::CSettingsPushButton *mirrored() const;
    ZYX_zglv6::CSettingsPushButton *framed() const;

    // The panel has no state of its own beside its rows.
    QByteArray serializeExclusive() const override;
    void deserializeExclusive(const QByteArray &data) override;
    QObject *getObject() override;
    const QObject *getObject() const override;

private:
    ZYX_zglv6::CSettingsPushButton *addRow(const QString &text, const QString &toolTip, const QString &guid);

    ZYX_zglv6::CSettingsPushButton *m_blackAndWhite;
    ZYX_zglv6::CSettingsPushButton *m_mirrored;
    ZYX_zglv6::CSettingsPushButton *m_framed;
};
