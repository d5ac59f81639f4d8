// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/Registry.h"

#include "platform/IdentityPlace.h"
#include "support/Sandbox.h"

#include <QtTest/QTest>

using ZyxPlatform::openIdentityStore;

class tst_Registry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void identityStore_startsEmpty();
    void identityStore_keepsWhatIsWritten();
    void identityStore_isTheOrganisationsOwnPlace();
    void identityStore_isNotTheProductsStore();
    void identityStore_hasNothingOfAllUsers();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_Registry::identityStore_startsEmpty()
{
    const auto store = openIdentityStore();
    QVERIFY(store != nullptr);
    QVERIFY(store->value(u"UserID"_qs).isNull());
    QVERIFY(store->isWritable());
    QCOMPARE(store->format(), QSettings::NativeFormat);
}

void tst_Registry::identityStore_keepsWhatIsWritten()
{
    openIdentityStore()->setValue(u"UserID"_qs, u"kept"_qs);
    QCOMPARE(openIdentityStore()->value(u"UserID"_qs).toString(), u"kept"_qs);
}

void tst_Registry::identityStore_isTheOrganisationsOwnPlace()
{
    openIdentityStore()->setValue(u"UserID"_qs, u"here"_qs);
    QCOMPARE(TestSupport::openIdentityPlace(m_sandbox)->value(u"UserID"_qs).toString(), u"here"_qs);
}

void tst_Registry::identityStore_isNotTheProductsStore()
{
    QSettings product(u"Zyx Labs"_qs, u"Zyx Grainlab 6"_qs);
    product.setValue(u"UserID"_qs, u"product"_qs);
    QSettings organisation(u"Zyx Labs"_qs);
    organisation.setValue(u"OtherID"_qs, u"organisation"_qs);
    product.sync();
    organisation.sync();

    const auto store = openIdentityStore();
    store->remove(u"UserID"_qs);
    store->sync();
    QVERIFY(store->value(u"UserID"_qs).isNull());
    QVERIFY(store->value(u"OtherID"_qs).isNull());
    product.sync();
    QCOMPARE(product.value(u"UserID"_qs).toString(), u"product"_qs);
}

void tst_Registry::identityStore_hasNothingOfAllUsers()
{
    const auto ofAllUsers = TestSupport::openPlaceOfAllUsers(m_sandbox);
    if (ofAllUsers == nullptr) {
        QSKIP("The store is opened by its full path here, and no other one counts beside it.");
    }
    ofAllUsers->setValue(u"SharedID"_qs, u"everybody"_qs);
    ofAllUsers->sync();
    QCOMPARE(QSettings(u"ZyxLabs"_qs).value(u"SharedID"_qs).toString(), u"everybody"_qs); // as QSettings goes by itself
    QVERIFY(openIdentityStore()->value(u"SharedID"_qs).isNull());
}

QTEST_GUILESS_MAIN(tst_Registry)

#include "tst_Registry.moc"
