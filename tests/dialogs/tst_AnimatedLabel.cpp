// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "dialogs/OverlayCalls.h"
#include "support/AssertionReports.h"

#include "utilsDll/dialogs/ProgressPainter.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QTemporaryDir>
#include <QtGui/QPainter>
#include <QtGui/QPixmapCache>
#include <QtTest/QTest>

#include <memory>

using namespace ZYX_zglv6;

namespace {

constexpr QRgb red = 0xffff0000;
constexpr QRgb green = 0xff00ff00;
constexpr QRgb blue = 0xff0000ff;

/*! Files of one colour each. */
class FrameFiles
{
public:
    FrameFiles()
        : paths({save(u"red.png"_qs, red), save(u"green.png"_qs, green), save(u"blue.png"_qs, blue)})
        , missing(m_folder.filePath(u"missing.png"_qs))
    {
    }

private:
    QString save(const QString &name, QRgb colour) const
    {
        QImage image(20, 10, QImage::Format_ARGB32);
        image.fill(colour);
        const QString path = m_folder.filePath(name);
        return image.save(path) ? path : QString();
    }

    const QTemporaryDir m_folder;

public:
    const QStringList paths;
    const QString missing;
};

/*! The colour of the shown frame; 0 without one. */
QRgb frameOf(const AnimatedLabel &label)
{
    const QImage image = label.pixmap().toImage();
    return image.isNull() ? 0 : image.pixel(image.rect().center());
}

/*! Writes down which frames are painted. */
class WatchedLabel : public AnimatedLabel
{
public:
    using AnimatedLabel::AnimatedLabel;

    QList<QRgb> painted;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        AnimatedLabel::paintEvent(event);
        if (painted.isEmpty() || painted.constLast() != frameOf(*this)) {
            painted.append(frameOf(*this));
        }
    }
};

bool isAnimated(AnimatedLabel &label)
{
    return delayedCall().isActive(&label, "changeImage");
}

bool changeImage(AnimatedLabel &label)
{
    return QMetaObject::invokeMethod(&label, "changeImage");
}

} // namespace

class tst_AnimatedLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject_hasOnePrivateSlot();
    void construction_showsTheFirstFrame();
    void changeImage_showsTheFramesInACircle_data();
    void changeImage_showsTheFramesInACircle();
    void files_areReadOnce();
    void files_thatCannotBeRead_areEmptyFrames();
    void noFiles_areReported();
    void shown_changesEach200Milliseconds();
    void shown_again_goesOnWithTheNextFrame();
    void hidden_hasNoTimer();
    void deletedWhileShown_leavesNoTimer();
    void switchedTenThousandTimes_leavesNoTimer();
    void painting_isThatOfALabel();
    void painting_withAGroundOfASheet_coversTheFrame();

private:
    const FrameFiles m_files;
    const DelayedTimers m_timers;
};

void tst_AnimatedLabel::metaObject_hasOnePrivateSlot()
{
    const QMetaObject &meta = AnimatedLabel::staticMetaObject;
    QCOMPARE(meta.className(), "ZYX_zglv6::AnimatedLabel");
    QCOMPARE(meta.superClass(), &QLabel::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod method = meta.method(meta.methodOffset());
    QCOMPARE(method.methodSignature(), QByteArray("changeImage()"));
    QCOMPARE(method.methodType(), QMetaMethod::Slot);
    QCOMPARE(method.access(), QMetaMethod::Private);
}

void tst_AnimatedLabel::construction_showsTheFirstFrame()
{
    QWidget parent;
    AnimatedLabel label(m_files.paths, &parent);
    QCOMPARE(label.parentWidget(), &parent);
    QCOMPARE(frameOf(label), red);
    QCOMPARE(label.pixmap().size(), QSize(20, 10));
    QVERIFY(!isAnimated(label));
}

void tst_AnimatedLabel::changeImage_showsTheFramesInACircle_data()
{
    QTest::addColumn<int>("countOfFiles");
    QTest::addColumn<QList<QRgb>>("frames");

    QTest::newRow("three") << 3 << QList<QRgb>{red, green, blue, red, green, blue, red};
    QTest::newRow("two") << 2 << QList<QRgb>{red, green, red, green};
    QTest::newRow("one") << 1 << QList<QRgb>{red, red, red};
}

void tst_AnimatedLabel::changeImage_showsTheFramesInACircle()
{
    QFETCH(const int, countOfFiles);
    QFETCH(const QList<QRgb>, frames);
    AnimatedLabel label(m_files.paths.first(countOfFiles), nullptr);
    QList<QRgb> shown{frameOf(label)};
    while (shown.size() < frames.size()) {
        QVERIFY(changeImage(label));
        shown.append(frameOf(label));
    }
    QCOMPARE(shown, frames);
}

void tst_AnimatedLabel::files_areReadOnce()
{
    auto files = std::make_unique<FrameFiles>();
    AnimatedLabel label(files->paths, nullptr);
    files.reset();
    QPixmapCache::clear();
    for (const QRgb frame : {red, green, blue, red}) {
        QCOMPARE(frameOf(label), frame);
        QVERIFY(changeImage(label));
    }
}

void tst_AnimatedLabel::files_thatCannotBeRead_areEmptyFrames()
{
    const TestSupport::AssertionReports reports;
    AnimatedLabel label({m_files.missing, m_files.paths[1], QString()}, nullptr);
    QVERIFY(label.pixmap().isNull());
    QVERIFY(!label.grab().isNull());
    changeImage(label);
    QCOMPARE(frameOf(label), green);
    changeImage(label);
    QVERIFY(label.pixmap().isNull());
    QVERIFY(!label.grab().isNull());
    changeImage(label);
    QVERIFY(label.pixmap().isNull());
    changeImage(label);
    QCOMPARE(frameOf(label), green); // they keep their turn
    QCOMPARE(reports.texts(), QStringList());
}

void tst_AnimatedLabel::noFiles_areReported()
{
    const TestSupport::AssertionReports reports;
    AnimatedLabel label({}, nullptr);
    QCOMPARE(reports.texts().size(), 1);
    label.show();
    QVERIFY(changeImage(label));
    QVERIFY(label.pixmap().isNull());
    QCOMPARE(reports.texts().size(), 1); // once, not five times a second
}

void tst_AnimatedLabel::shown_changesEach200Milliseconds()
{
    WatchedLabel label(m_files.paths, nullptr);
    label.show();
    QVERIFY(QTest::qWaitForWindowExposed(&label));
    label.hide();
    const QRgb before = frameOf(label);
    label.show();
    QVERIFY(isAnimated(label));
    QCOMPARE(m_timers.intervals(), QList<int>{200});
    QVERIFY(answerAfter(100, [&] { return frameOf(label) == before; }));
    QVERIFY(answerAfter(150, [&] { return frameOf(label) != before; })); // 250 since it was shown
    label.painted.clear();
    QTRY_VERIFY(label.painted.size() >= 5);
    const qsizetype first = QList<QRgb>{red, green, blue}.indexOf(label.painted.constFirst());
    for (qsizetype i = 0; i < 5; ++i) {
        QCOMPARE(label.painted[i], (QList<QRgb>{red, green, blue}[(first + i) % 3]));
    }
}

void tst_AnimatedLabel::shown_again_goesOnWithTheNextFrame()
{
    WatchedLabel label(m_files.paths, nullptr);
    label.show();
    QVERIFY(QTest::qWaitForWindowExposed(&label));
    QTRY_COMPARE(frameOf(label), green);
    label.hide();
    QVERIFY(!isAnimated(label));
    QVERIFY(answerAfter(500, [&] { return frameOf(label) == green; })); // it stands still
    label.painted.clear();
    label.show();
    QTRY_VERIFY(label.painted.size() >= 3);
    QCOMPARE(label.painted.first(3), (QList<QRgb>{green, blue, red}));
}

void tst_AnimatedLabel::hidden_hasNoTimer()
{
    QWidget parent;
    AnimatedLabel label(m_files.paths, &parent);
    label.show(); // in a parent that is hidden
    QCOMPARE(m_timers.count(), 0);
    parent.show();
    QVERIFY(isAnimated(label));
    QCOMPARE(m_timers.count(), 1);
    parent.hide();
    QVERIFY(!isAnimated(label));
    QCOMPARE(m_timers.count(), 0);
}

void tst_AnimatedLabel::deletedWhileShown_leavesNoTimer()
{
    auto label = std::make_unique<AnimatedLabel>(m_files.paths, nullptr);
    label->show();
    QCOMPARE(m_timers.count(), 1);
    label.reset();
    QCOMPARE(m_timers.count(), 0);
}

void tst_AnimatedLabel::switchedTenThousandTimes_leavesNoTimer()
{
    QWidget parent;
    AnimatedLabel label(m_files.paths, &parent);
    parent.show();
    for (int i = 0; i < 10'000; ++i) {
        label.setVisible(i % 2 == 1);
        QCOMPARE(m_timers.count(), i % 2);
    }
    label.hide();
    QCOMPARE(m_timers.count(), 0);
    QCOMPARE(frameOf(label), red);
}

void tst_AnimatedLabel::painting_isThatOfALabel()
{
    AnimatedLabel label(m_files.paths, nullptr);
    QLabel plain;
    plain.setPixmap(QPixmap(m_files.paths[0]));
    for (QLabel *each : {static_cast<QLabel *>(&label), &plain}) {
        each->resize(60, 40);
        each->setAlignment(Qt::AlignCenter);
    }
    const QImage image = label.grab().toImage();
    QCOMPARE(image, plain.grab().toImage());
    QCOMPARE(image.pixel(30, 20), red);
}

void tst_AnimatedLabel::painting_withAGroundOfASheet_coversTheFrame()
{
    AnimatedLabel label(m_files.paths, nullptr);
    label.setObjectName(u"AnimatedLabel"_qs);
    label.resize(60, 40);
    label.setStyleSheet(u"QLabel#AnimatedLabel { background-color: #102030 }"_qs);
    label.setAlignment(Qt::AlignCenter);
    QCOMPARE(label.grab().toImage().pixel(30, 20), 0xff102030); // the ground is painted last
    label.setStyleSheet(u"QLabel#AnimatedLabel { padding-right: 11px; padding-top: 7px }"_qs);
    QCOMPARE(label.grab().toImage().pixel(24, 23), red);
}

QTEST_MAIN(tst_AnimatedLabel)
#include "tst_AnimatedLabel.moc"
