// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "interfaces/SerializableImpl.h"
#include "utilsDll/frame/Export.h"

#include <QtCore/QMap>
#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtWidgets/QWidget>

class QLabel;
class QToolButton;

namespace ZYX_zglv6 {

/*!
    One row of a settings panel: a right-aligned caption in a column of fixed width and a square button beside it. Style
    sheets find the two by their object names, "settingsPushButtonLabel" and "settingsPushButtonButton".

    Stores whether it is checked and, unless that is switched off, whether it is visible. A slot of toggled() must not
    delete the row. Main thread only.
*/
class UTILSDLL_EXPORT CSettingsPushButton : public QWidget, public SerializableUiImpl
{
    Q_OBJECT

public:
    explicit CSettingsPushButton(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~CSettingsPushButton() override;

    /*!
        Sets the caption, which is also the button's name for a screen reader. Returns its width in pixels, 118 at most,
        which is the column's width before adjustWidth(): a wider caption is cut.
    */
    int init(const QString &text);

    /*! Sets the width of the caption's column to \a width pixels if that is 119 or more; for rows of one width. */
    void adjustWidth(int width);

    QString labelText() const;
    void setLeftContentMargin(int margin);

    /*! Of the button, not of the row. */
    void setButtonToolTip(const QString &text);

    void setButtonCheckable(bool checkable);
    bool isButtonCheckable() const;
    void checkButton(bool checked);
    bool isButtonChecked() const;
    void clickButton();

    /*! Whether later states hold more than the check mark. */
    void setAllowToSerializationOfAdditionalData(bool allow);

    /*! Under which key the visibility is stored. */
    static QString serializePropIsVisible();

    QByteArray serializeExclusive() const override;
    void deserializeExclusive(const QByteArray &bytes) override;
    QObject *getObject() override;
    const QObject *getObject() const override;

Q_SIGNALS:
    /*! The button was clicked, by the user, click() or clickButton(). */
    void clicked(bool checked = false);
    /*! Every change of the check mark, also one made by the program; but none that the gate for commands makes. */
    void toggled(bool checked);

public Q_SLOTS:
    /*! Clicks the button. A disabled one is reported as a failed assertion and stays as it is. */
    void click();

protected:
    /*!
        What a state holds beside the check mark; a subclass adds to it. Values are of plain types, such as numbers,
        texts, dates, rectangles and colours, of types that the host has registered, or lists and maps of such.
    */
    virtual void serializeAdditionalData(QMap<QString, QVariant> &state) const;
    virtual void deserializeAdditionalData(const QMap<QString, QVariant> &state);

private:
    QLabel *m_label;
    QPointer<QToolButton> m_button;
    QString m_text; // reserved: no operation reads or writes it
    QWidget *m_labelContainer;
    bool m_isAdditionalDataAllowed = true;
};

} // namespace ZYX_zglv6
