// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtTest/QTest>

/*! Runs the examples of the page on the look. */
class tst_LookSnippets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paintPreview_hasShadowAndGroove();
    void isVisiblyChanged_fromAHundredthOn();
};

void tst_LookSnippets::paintPreview_hasShadowAndGroove()
{
    QImage photograph(20, 10, QImage::Format_RGB32);
    photograph.fill(Qt::white);
    QImage image(80, 40, QImage::Format_RGB32);
    image.fill(Qt::lightGray);
    QPainter painter(&image);
    Snippets::paintPreview(painter, photograph, {10, 5});
    QCOMPARE(image.pixelColor(20, 10), QColor(Qt::white));
    QVERIFY(image.pixelColor(20, 15).lightness() < QColor(Qt::lightGray).lightness()); // right below
    QCOMPARE(image.pixelColor(48, 10), QColor(Qt::black));
    QCOMPARE(image.pixelColor(49, 10), QColor(Qt::gray));
    QCOMPARE(image.pixelColor(60, 10), QColor(Qt::lightGray));
}

void tst_LookSnippets::isVisiblyChanged_fromAHundredthOn()
{
    QImage before(10, 10, QImage::Format_RGB888);
    before.fill(Qt::black);
    QImage after = before;
    after.setPixelColor(0, 0, Qt::white);
    QVERIFY(!Snippets::isVisiblyChanged(before, after));
    after.setPixelColor(1, 0, QColor(1, 0, 0));
    QVERIFY(Snippets::isVisiblyChanged(before, after));
}

QTEST_MAIN(tst_LookSnippets)
#include "tst_LookSnippets.moc"
