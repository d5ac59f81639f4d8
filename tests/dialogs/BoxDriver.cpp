// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "dialogs/BoxDriver.h"

#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPushButton>

#include <algorithm>

namespace {

bool isRightOf(const QAbstractButton *one, const QAbstractButton *other)
{
    return one->x() > other->x();
}

QString plainText(const QAbstractButton &button)
{
    return button.text().remove(u'&');
}

} // namespace

BoxFacts factsOf(const QMessageBox &box)
{
    BoxFacts facts{
        box.windowTitle(), box.text(), box.objectName(), box.icon(), !box.iconPixmap().isNull(), {}, {}, {}, {}, {}};
    QList<QAbstractButton *> buttons = box.buttons();
    std::sort(buttons.begin(), buttons.end(), isRightOf);
    for (const QAbstractButton *button : buttons) {
        facts.buttons.append(plainText(*button));
        facts.names.append(button->objectName());
        facts.roles.append(box.buttonRole(const_cast<QAbstractButton *>(button)));
        if (button->property("highlighted").toBool()) {
            facts.highlighted.append(plainText(*button));
        }
    }
    if (box.defaultButton() != nullptr) {
        facts.defaultButton = plainText(*box.defaultButton());
    }
    return facts;
}

QPushButton *buttonOf(const QMessageBox &box, const QString &text)
{
    for (QAbstractButton *button : box.buttons()) {
        if (plainText(*button) == text) {
            return qobject_cast<QPushButton *>(button);
        }
    }
    return nullptr;
}

QList<QMessageBox *> visibleBoxes()
{
    QList<QMessageBox *> boxes;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        auto *box = qobject_cast<QMessageBox *>(widget);
        if (box != nullptr && box->isVisible()) {
            boxes.append(box);
        }
    }
    return boxes;
}

BoxDriver::BoxDriver()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool BoxDriver::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::Show || event->spontaneous()) {
        return false;
    }
    if (auto *box = qobject_cast<QMessageBox *>(object)) {
        ++shownCount;
        mostVisible = std::max(mostVisible, int(visibleBoxes().size()));
        QMetaObject::invokeMethod(
            box, [this, box] { react(*box); }, Qt::QueuedConnection);
    }
    return false;
}

void BoxDriver::react(QMessageBox &box)
{
    if (m_reactions.isEmpty()) {
        ++unexpectedCount;
        box.reject();
        return;
    }
    m_reactions.takeFirst()(box);
}

void BoxDriver::onNext(const Reaction &reaction)
{
    m_reactions.append(reaction);
}

void BoxDriver::lookAtNext(const Reaction &look)
{
    onNext([look](QMessageBox &box) {
        look(box);
        box.close();
    });
}

void BoxDriver::clickNext(const QString &buttonText)
{
    onNext([this, buttonText](QMessageBox &box) {
        facts = factsOf(box);
        if (QPushButton *button = buttonOf(box, buttonText)) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
        ++unexpectedCount;
        box.reject();
    });
}

void BoxDriver::closeNext()
{
    onNext([this](QMessageBox &box) {
        facts = factsOf(box);
        box.close();
    });
}

void BoxDriver::pressKeyOnNext(Qt::Key key)
{
    onNext([this, key](QMessageBox &box) {
        facts = factsOf(box);
        QTest::keyClick(&box, key);
    });
}
