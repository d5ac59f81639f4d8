// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "AccessibilityAudit.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"

#include "DialogPicture.h"
#include "Exhibits.h"

#include "common/Look.h"

#include <QtTest/QTest>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include <memory>

namespace {

// A row of a panel never takes the focus from what it changes: its host gives it a key.
constexpr QLatin1StringView rowWithoutFocus("QToolButton \"settingsPushButtonButton\": not reached by Tab");

constexpr const char *languages[]{"en", "de", "fr", "ja", "zh_CN"};

/*! As a line for the one who mends them. */
QByteArray joined(const QStringList &faults)
{
    return faults.join(u'\n').toUtf8();
}

} // namespace

/*! Whether everything that the gallery shows can be used by the keyboard and by ear. */
class tst_Accessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void audit_findsWhatIsMissing();
    void everyExhibit_hasNoFault_data();
    void everyExhibit_hasNoFault();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_Accessibility::audit_findsWhatIsMissing()
{
    QDialog dialog;
    auto *layout = new QVBoxLayout(&dialog);
    auto *nameless = new QToolButton;
    nameless->setFocusPolicy(Qt::StrongFocus);
    auto *unreached = new QPushButton(u"Save"_qs);
    unreached->setFocusPolicy(Qt::NoFocus);
    auto *link = new QLabel(u"<a href='x'>x</a>"_qs);
    link->setTextInteractionFlags(Qt::LinksAccessibleByMouse);
    auto *roleless = new QWidget;
    roleless->setFocusPolicy(Qt::TabFocus);
    roleless->setAccessibleName(u"Preview"_qs);
    for (QWidget *widget : {static_cast<QWidget *>(nameless), static_cast<QWidget *>(unreached),
                            static_cast<QWidget *>(link), roleless}) {
        layout->addWidget(widget);
    }
    layout->addWidget(new QPushButton(u"Good"_qs));
    dialog.show();
    QCOMPARE(accessibilityFaults(dialog),
             (QStringList{u"QToolButton \"\": no name"_qs, u"QPushButton \"\": not reached by Tab"_qs,
                          u"QLabel \"\": not reached by Tab"_qs, u"QWidget \"\": no role"_qs}));
}

void tst_Accessibility::everyExhibit_hasNoFault_data()
{
    QTest::addColumn<QString>("language");
    for (const char *language : languages) {
        QTest::newRow(language) << QString::fromLatin1(language);
    }
}

void tst_Accessibility::everyExhibit_hasNoFault()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const QString, language);

    putOnLook(language);
    QWidget host;
    host.resize(600, 400);
    QStringList faults;
    int count = 0;
    for (const ExhibitSection &section : exhibitSections(m_sandbox.filePath(u"."_qs))) {
        for (const Exhibit &exhibit : section.exhibits) {
            if (!exhibit.hasPicture) {
                continue;
            }
            ++count;
            const auto look = [&](QWidget &shown) {
                for (const QString &fault : accessibilityFaults(shown)) {
                    if (fault != rowWithoutFocus) {
                        faults.append(exhibit.name + u": " + fault);
                    }
                }
            };
            if (exhibit.make) {
                const std::unique_ptr<QWidget> widget = exhibit.make();
                widget->show();
                look(*widget);
            } else {
                QVERIFY2(visitDialog([&] { exhibit.open(&host); }, look), qPrintable(exhibit.name));
            }
        }
    }
    QVERIFY(count > 40);
    QVERIFY2(faults.isEmpty(), joined(faults));
}

QTEST_MAIN(tst_Accessibility)
#include "tst_Accessibility.moc"
