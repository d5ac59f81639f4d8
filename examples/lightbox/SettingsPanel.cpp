// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "SettingsPanel.h"

#include "utilsDll/dialogs/SettingsPushButton.h"

#include <QtWidgets/QVBoxLayout>

using namespace ZYX_zglv6;

namespace {

// The rows are found by the names that the library gives to their parts. A caption as wide as its column ends beside
// the button.
constexpr QLatin1StringView look("#settingsPushButtonLabel { color: #c8c8c8; min-width: 110px; padding-right: 8px; }"
                                 "#settingsPushButtonButton { border: 1px solid #6e6e6e; border-radius: 4px; }"
                                 "#settingsPushButtonButton:hover { border-color: #c8c8c8; }"
                                 "#settingsPushButtonButton:checked { background: #e0a030; border-color: #e0a030; }");
constexpr int rowSpacing = 12;

} // namespace

CSettingsPanel::CSettingsPanel(QWidget *parent)
    : QWidget(parent)
{
    setProperty("GUID", u"lightbox.panel"_qs);
    setStyleSheet(look);
    auto *rows = new QVBoxLayout(this);
    rows->setSpacing(rowSpacing);
    m_blackAndWhite = addRow(tr("Black and white"), tr("Shows the photograph without its colours"),
                             u"lightbox.panel.blackAndWhite"_qs);
    m_mirrored = addRow(tr("Mirrored"), tr("Shows the slide from its back"), u"lightbox.panel.mirrored"_qs);
    m_framed = addRow(tr("Frame"), tr("Puts a white border around the photograph"), u"lightbox.panel.framed"_qs);
    rows->addStretch();
}

CSettingsPushButton *CSettingsPanel::addRow(const QString &text, const QString &toolTip, const QString &guid)
{
    auto *row = new CSettingsPushButton(this);
    row->init(text);
    row->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    row->setButtonCheckable(true);
    row->setButtonToolTip(toolTip);
    row->setProperty("GUID", guid);
    row->setAllowToSerializationOfAdditionalData(false); // the panel may be hidden; its rows are none the less wanted
    layout()->addWidget(row);
    return row;
}

CSettingsPushButton *CSettingsPanel::blackAndWhite() const
{
    return m_blackAndWhite;
}

CSettingsPushButton *CSettingsPanel::mirrored() const
{
    return m_mirrored;
}

CSettingsPushButton *CSettingsPanel::framed() const
{
    return m_framed;
}

QByteArray CSettingsPanel::serializeExclusive() const
{
    return {};
}

void CSettingsPanel::deserializeExclusive(const QByteArray & /*data*/)
{
}

QObject *CSettingsPanel::getObject()
{
    return this;
}

const QObject *CSettingsPanel::getObject() const
{
    return this;
}
