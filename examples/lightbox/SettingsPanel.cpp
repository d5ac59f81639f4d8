// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "SettingsPanel.h"

#include "utilsDll/dialogs/SettingsPushButton.h"

#include <QtWidgets/QVBoxLayout>

using namespace ZYX_zglv6;

namespace {

// The rows are found by the names that the library gives to their parts. A caption as wide as its column ends beside
// the button.
constexpr QLatin1StringView look("#settingsPushButtonLabel { min-width: 110px; padding-right: 8px; }"
                                 "#settingsPushButtonButton { border: 1px solid #3b3b3b; border-radius: 4px; }"
                                 "#settingsPushButtonButton:hover { border-color: #cccccc; }"
                                 "#settingsPushButtonButton:checked { background: #a33f12; border-color: #ce7044; }");
constexpr int rowSpacing = 12;

} // namespace

CSettingsPanel::CSettingsPanel(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(u"settingsPanel"_qs); // the sheets know it by this name
    setAttribute(Qt::WA_StyledBackground); // for its ground
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
