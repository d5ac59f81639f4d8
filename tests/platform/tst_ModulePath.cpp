// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/ModulePath.h"
#include "support/FreshProcess.h"

#include "utilsDll/look/SharedUtils.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLibrary>
#include <QtTest/QTest>

using ZYX_zglv6::getQtPluginsDir;
using ZyxPlatform::pathOfModuleOrProgram;

namespace {

const QString connectorName = u"PhotoshopPlugin-connectorzglv6"_qs;

QString connectorsFolder()
{
    return QCoreApplication::applicationDirPath() + u"/hostPlugin/connector";
}

QString connectorPath()
{
    return connectorsFolder() + u'/' + QString::fromUtf8(CONNECTOR);
}

/*! What getQtPluginsDir(true) makes of a folder that a module lies in. */
QString parentOf(const QString &folder)
{
    return QDir::toNativeSeparators(QDir::cleanPath(QDir(folder).canonicalPath() + u"/..")) + QDir::separator();
}

} // namespace

class tst_ModulePath : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void path_ofLoadedModule_isItsFile();
    void path_ofUnloadedModule_isTheProgramAgain();
    void path_ofOtherName_isTheProgram_data();
    void path_ofOtherName_isTheProgram();
    void getQtPluginsDir_inHostPlugin_isTheParentOfTheConnectorsFolder();
    void getQtPluginsDir_inHostPluginWithoutConnector_isTheParentOfTheProgramsFolder();
};

void tst_ModulePath::path_ofLoadedModule_isItsFile()
{
    RUN_IN_FRESH_PROCESS();
    QLibrary connector(connectorPath());
    QVERIFY2(connector.load(), qPrintable(connector.errorString()));
    const QFileInfo found(pathOfModuleOrProgram(connectorName));
    QCOMPARE(found.canonicalFilePath(), QFileInfo(connectorPath()).canonicalFilePath());
    QVERIFY(found.isAbsolute());
}

void tst_ModulePath::path_ofUnloadedModule_isTheProgramAgain()
{
    RUN_IN_FRESH_PROCESS();
    QLibrary connector(connectorPath());
    QVERIFY(connector.load());
    QVERIFY(pathOfModuleOrProgram(connectorName) != pathOfModuleOrProgram(u"none"_qs));
    QVERIFY(connector.unload());
    QCOMPARE(pathOfModuleOrProgram(connectorName), pathOfModuleOrProgram(u"none"_qs));
}

void tst_ModulePath::path_ofOtherName_isTheProgram_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("no such module") << u"no-such-module"_qs;
    QTest::newRow("the start of a name") << connectorName.chopped(1);
    QTest::newRow("the end of a name") << connectorName.sliced(1);
    QTest::newRow("empty") << QString();
}

void tst_ModulePath::path_ofOtherName_isTheProgram()
{
    QFETCH(const QString, name);
    QLibrary connector(connectorPath());
    QVERIFY(connector.load());
    QCOMPARE(QFileInfo(pathOfModuleOrProgram(name)).canonicalFilePath(),
             QFileInfo(QCoreApplication::applicationFilePath()).canonicalFilePath());
    QVERIFY(connector.unload());
}

void tst_ModulePath::getQtPluginsDir_inHostPlugin_isTheParentOfTheConnectorsFolder()
{
    RUN_IN_FRESH_PROCESS();
    QLibrary connector(connectorPath());
    QVERIFY(connector.load());
    const QString folder = getQtPluginsDir(true);
    QCOMPARE(folder, parentOf(connectorsFolder()));
    QVERIFY(folder.endsWith(u"hostPlugin"_qs + QDir::separator()));

    QVERIFY(connector.unload());
    QCOMPARE(getQtPluginsDir(true), folder);
}

void tst_ModulePath::getQtPluginsDir_inHostPluginWithoutConnector_isTheParentOfTheProgramsFolder()
{
    RUN_IN_FRESH_PROCESS();
    const QString folder = getQtPluginsDir(true);
    QCOMPARE(folder, parentOf(QCoreApplication::applicationDirPath()));

    QLibrary connector(connectorPath());
    QVERIFY(connector.load());
    QCOMPARE(getQtPluginsDir(true), folder); // the first answer stands
}

QTEST_GUILESS_MAIN(tst_ModulePath)

#include "tst_ModulePath.moc"
