// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/dialogs/SettingsPushButton.h"

#include "interfaces/StateMap_p.h"
#include "utilsDll/frame/Assertions.h"

#include <QtCore/QDataStream>
#include <QtCore/QIODevice>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>

namespace ZYX_zglv6 {

namespace {

constexpr int labelWidth = 118;
constexpr QSize buttonSize(30, 30);

constexpr QLatin1StringView isVisibleKey("SettingsPushButtonSerializePropIsVisible");
constexpr QLatin1StringView isCheckedKey("SettingsPushButtonSerializePropIsChecked");

QHBoxLayout *addTightLayout(QWidget *widget)
{
    auto *layout = new QHBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

} // namespace

CSettingsPushButton::CSettingsPushButton(QWidget *parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
    , m_label(new QLabel(this))
    , m_button(new QToolButton(this))
    , m_labelContainer(new QWidget(this))
{
    setFocusPolicy(Qt::NoFocus);

    m_label->setObjectName(u"settingsPushButtonLabel"_qs);
    m_label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_labelContainer->setFixedWidth(labelWidth);
    QHBoxLayout *labelLayout = addTightLayout(m_labelContainer);
    labelLayout->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    labelLayout->addWidget(m_label);

    m_button->setObjectName(u"settingsPushButtonButton"_qs);
    m_button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_button->setFocusPolicy(Qt::NoFocus);
    m_button->setFixedSize(buttonSize);
    m_button->setIconSize(buttonSize);

    QHBoxLayout *layout = addTightLayout(this);
    layout->addWidget(m_labelContainer);
    layout->addWidget(m_button);
    layout->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum));

    connect(m_button, &QToolButton::clicked, this, &CSettingsPushButton::clicked);
    connect(m_button, &QToolButton::toggled, this, &CSettingsPushButton::toggled);
}

CSettingsPushButton::~CSettingsPushButton() = default;

int CSettingsPushButton::init(const QString &text)
{
    m_label->setText(text);
    m_button->setAccessibleName(text);
    return qMin(m_label->fontMetrics().horizontalAdvance(text), labelWidth);
}

void CSettingsPushButton::adjustWidth(int width)
{
    if (width > labelWidth) {
        m_labelContainer->setFixedWidth(width);
    }
}

QString CSettingsPushButton::labelText() const
{
    return m_label->text();
}

void CSettingsPushButton::setLeftContentMargin(int margin)
{
    if (layout() == nullptr) {
        return;
    }
    QMargins margins = layout()->contentsMargins();
    margins.setLeft(margin);
    layout()->setContentsMargins(margins);
}

void CSettingsPushButton::setButtonToolTip(const QString &text)
{
    if (m_button != nullptr) {
        m_button->setToolTip(text);
    }
}

void CSettingsPushButton::setButtonCheckable(bool checkable)
{
    if (m_button != nullptr) {
        m_button->setCheckable(checkable);
    }
}

bool CSettingsPushButton::isButtonCheckable() const
{
    return m_button != nullptr && m_button->isCheckable();
}

void CSettingsPushButton::checkButton(bool checked)
{
    if (m_button != nullptr) {
        m_button->setChecked(checked);
    }
}

bool CSettingsPushButton::isButtonChecked() const
{
    return m_button != nullptr && m_button->isChecked();
}

void CSettingsPushButton::clickButton()
{
    if (m_button != nullptr) {
        m_button->click();
    }
}

void CSettingsPushButton::setAllowToSerializationOfAdditionalData(bool allow)
{
    m_isAdditionalDataAllowed = allow;
}

QString CSettingsPushButton::serializePropIsVisible()
{
    return isVisibleKey;
}

QByteArray CSettingsPushButton::serializeExclusive() const
{
    QMap<QString, QVariant> state;
    state.insert(isCheckedKey, isButtonChecked());
    if (m_isAdditionalDataAllowed) {
        serializeAdditionalData(state);
    }
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(stateStreamVersion);
    stream << m_isAdditionalDataAllowed << state;
    return bytes;
}

void CSettingsPushButton::deserializeExclusive(const QByteArray &bytes)
{
    QDataStream stream(bytes);
    stream.setVersion(stateStreamVersion);
    bool hasAdditionalData = m_isAdditionalDataAllowed;
    stream >> hasAdditionalData;
    const QMap<QString, QVariant> state = readStateMap(stream);

    if (state.contains(isCheckedKey)) {
        checkButton(state.value(isCheckedKey).toBool());
    }
    if (hasAdditionalData) {
        deserializeAdditionalData(state);
    }
}

QObject *CSettingsPushButton::getObject()
{
    return this;
}

const QObject *CSettingsPushButton::getObject() const
{
    return this;
}

void CSettingsPushButton::click()
{
    if (m_button != nullptr) {
        ASSERT(m_button->isEnabled());
        m_button->click();
    }
}

void CSettingsPushButton::serializeAdditionalData(QMap<QString, QVariant> &state) const
{
    state.insert(isVisibleKey, isVisible() && !testAttribute(Qt::WA_WState_Hidden));
}

void CSettingsPushButton::deserializeAdditionalData(const QMap<QString, QVariant> &state)
{
    if (state.contains(isVisibleKey)) {
        setVisible(state.value(isVisibleKey).toBool());
    }
}

} // namespace ZYX_zglv6
