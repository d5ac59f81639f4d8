// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>

class QAction;

namespace ZYX_zglv6 {

class CSettingsPushButton;

/*!
    One face for every checkable command: a signal when the user has flipped the control, and its state. A child of the
    control that it stands for. Main thread only, like all proxies.
*/
class UTILSDLL_EXPORT CBoolActionAbstractProxy : public QObject
{
    Q_OBJECT

public:
    /*! \a action, the control, becomes the parent. */
    explicit CBoolActionAbstractProxy(QObject *action);
    ~CBoolActionAbstractProxy() override;

    /*! Sets the control's state without triggered(). */
    virtual void setChecked(bool checked) = 0;
    virtual bool isChecked() const = 0;

Q_SIGNALS:
    /*! The control was flipped by a click or a trigger, not by a change of its state that a program makes. */
    void triggered(bool checked);
};

/*! Stands for a checkable QAction. */
class UTILSDLL_EXPORT CBoolActionProxy : public CBoolActionAbstractProxy
{
    Q_OBJECT

public:
    explicit CBoolActionProxy(QAction *action);
    ~CBoolActionProxy() override;

    void setChecked(bool checked) override;
    bool isChecked() const override;

private:
    QPointer<QAction> m_action;
};

/*! Stands for a checkable CSettingsPushButton. Clicks count, other changes of its state do not. */
class UTILSDLL_EXPORT CSettingsPushButtonActionProxy : public CBoolActionAbstractProxy
{
    Q_OBJECT

public:
    explicit CSettingsPushButtonActionProxy(CSettingsPushButton *button);
    ~CSettingsPushButtonActionProxy() override;

    void setChecked(bool checked) override;
    bool isChecked() const override;

private:
    QPointer<CSettingsPushButton> m_button;
};

/*! Adds to a proxy's signal which proxy it was. The proxy is neither owned nor guarded. */
class UTILSDLL_EXPORT CConnectionHelper : public QObject
{
    Q_OBJECT

public:
    CConnectionHelper(CBoolActionAbstractProxy *action, QObject *parent);
    ~CConnectionHelper() override;

Q_SIGNALS:
    void actionTriggered(CBoolActionAbstractProxy *action, bool checked);

private Q_SLOTS:
    void onAction(bool checked);

private:
    CBoolActionAbstractProxy *m_action;
};

} // namespace ZYX_zglv6
