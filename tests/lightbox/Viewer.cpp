// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Viewer.h"

#include "LightboxApplication.h"
#include "PhotoView.h"
#include "UnitMenu.h"

#include <QtCore/QPointer>
#include <QtGui/QAction>
#include <QtGui/QImage>
#include <QtTest/QTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <algorithm>
#include <utility>

Viewer::Viewer(const QString &photos)
    : window(photos)
{
    static_cast<CLightboxApplication *>(QApplication::instance())->setMainWindow(&window);
    window.show();
    window.activateWindow();
    isUp = QTest::qWaitForWindowActive(&window);
    window.showCurrent();
}

void Viewer::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    window.activateWindow(); // a box may have closed just now
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, key, modifiers);
}

QAction *Viewer::unit(int number) const
{
    return window.findChild<CUnitMenu *>()->actions().at(number);
}

QColor Viewer::colorInTheMiddle() const
{
    auto *view = window.findChild<CPhotoView *>();
    return view->grab().toImage().pixelColor(view->rect().center());
}

BoxGuest::BoxGuest(std::function<void(QDialog &)> visit)
    : m_visit(std::move(visit))
{
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
    m_timer.start(5);
}

int BoxGuest::visits() const
{
    return m_visits;
}

void BoxGuest::look()
{
    const QPointer<QDialog> box = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isActiveWindow()) {
        return;
    }
    m_timer.stop(); // a visit may handle events
    ++m_visits;
    m_visit(*box);
    if (box != nullptr && box->isVisible()) {
        box->reject();
    }
}

QPushButton *buttonOf(const QDialog &box, const QString &text)
{
    const QList<QPushButton *> buttons = box.findChildren<QPushButton *>();
    const auto found = std::find_if(buttons.cbegin(), buttons.cend(), [&text](const QPushButton *button) {
        return QString(button->text()).remove(u'&') == text;
    });
    return found == buttons.cend() ? nullptr : *found;
}

std::function<void(QDialog &)> clicking(const QString &button)
{
    return [button](QDialog &box) { buttonOf(box, button)->click(); };
}

std::function<void(QDialog &)> typing(const QString &name)
{
    return [name](QDialog &box) {
        auto *line = box.findChild<QLineEdit *>();
        line->selectAll();
        line->insert(name); // keys of a test are ASCII
        QTest::keyClick(line, Qt::Key_Return);
    };
}
