// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Selectors.h"

#include <QtTest/QTest>

class tst_Selectors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void controlsOf_readsWhatARuleIsFor_data();
    void controlsOf_readsWhatARuleIsFor();
};

void tst_Selectors::controlsOf_readsWhatARuleIsFor_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<QStringList>("selectors");
    QTest::addColumn<QStringList>("states");

    const QStringList none;
    QTest::newRow("nothing") << QString() << none << none;
    QTest::newRow("type") << u"QLabel { color: red; }"_qs << QStringList(u"QLabel"_qs) << none;
    QTest::newRow("name") << u"QLabel#a {}"_qs << QStringList(u"QLabel#a"_qs) << none;
    QTest::newRow("state") << u"QPushButton:hover {}"_qs << QStringList(u"QPushButton"_qs) << QStringList(u"hover"_qs);
    QTest::newRow("part") << u"QTabBar#tabs::tab:hover:!selected {}"_qs << QStringList(u"QTabBar#tabs"_qs)
                          << QStringList{u"hover"_qs, u"!selected"_qs};
    QTest::newRow("property") << u"QPushButton[highlighted=\"true\"]:hover {}"_qs
                              << QStringList(u"QPushButton[highlighted=true]"_qs) << QStringList(u"hover"_qs);
    QTest::newRow("descendant") << u"QWidget#a  QLabel#b {}"_qs << QStringList(u"QWidget#a QLabel#b"_qs) << none;
    QTest::newRow("several") << u"A,\nB#b, C {}"_qs << QStringList{u"A"_qs, u"B#b"_qs, u"C"_qs} << none;
    QTest::newRow("the same again") << u"A:hover {} B {} A::item:hover {} A:pressed {}"_qs
                                    << QStringList{u"A"_qs, u"B"_qs} << QStringList{u"hover"_qs, u"pressed"_qs};
    QTest::newRow("comments") << u"/* A { } */ B { /* , C { */ color: red; }"_qs << QStringList(u"B"_qs) << none;
}

void tst_Selectors::controlsOf_readsWhatARuleIsFor()
{
    QFETCH(const QString, sheet);
    QFETCH(const QStringList, selectors);
    QFETCH(const QStringList, states);

    QStringList texts;
    QStringList allStates;
    for (const StyledControl &control : controlsOf(sheet)) {
        texts.append(textOf(control.selector));
        allStates += control.states;
    }
    QCOMPARE(texts, selectors);
    QCOMPARE(allStates, states);
}

QTEST_GUILESS_MAIN(tst_Selectors)
#include "tst_Selectors.moc"
