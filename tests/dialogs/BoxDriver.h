// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtWidgets/QMessageBox>

#include <functional>

/*! What a test sees of a box while it is open. */
struct BoxFacts
{
    QString title;
    QString text;
    QString name;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    bool hasIconPixmap = false;
    QStringList buttons; // sorted by place, from the right
    QStringList names; // of the same buttons
    QList<QMessageBox::ButtonRole> roles; // of the same buttons
    QStringList highlighted;
    QString defaultButton;
};

BoxFacts factsOf(const QMessageBox &box);

/*! The button with that text, without regard to the mark of its key; null if there is none. */
QPushButton *buttonOf(const QMessageBox &box, const QString &text);

QList<QMessageBox *> visibleBoxes();

/*!
    Answers the message boxes of the process: each, once it is shown, by the next reaction, from the event loop. A box
    without a reaction is rejected and counted. One driver at a time.
*/
class BoxDriver : public QObject
{
public:
    using Reaction = std::function<void(QMessageBox &)>;

    BoxDriver();

    bool eventFilter(QObject *object, QEvent *event) override;

    void onNext(const Reaction &reaction);
    /*! Closes the next box after the look. */
    void lookAtNext(const Reaction &look);
    /*! Notes the facts of the next box and clicks that button with the mouse. */
    void clickNext(const QString &buttonText);
    /*! Notes the facts of the next box and closes it by its close button. */
    void closeNext();
    void pressKeyOnNext(Qt::Key key);

    BoxFacts facts; // of the latest box with such a reaction
    int shownCount = 0;
    int unexpectedCount = 0;
    int mostVisible = 0;

private:
    void react(QMessageBox &box);

    QList<Reaction> m_reactions;
};
