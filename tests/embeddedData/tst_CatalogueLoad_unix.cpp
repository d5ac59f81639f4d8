// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/FreshProcess.h"
#include "utilsDll/frame/QtResources.h"

#include <QtCore/QFile>
#include <QtCore/QResource>
#include <QtCore/QtEndian>
#include <QtTest/QTest>

#include <unistd.h>

namespace {

const QString catalogue = u":/calibration/db/CAFList5.db"_qs;

// A system brings neighbours of a page in with it, up to a huge page that starts or ends in what lies beside the
// catalogue.
constexpr quintptr hugePage = quintptr(2) * 1024 * 1024;

struct Pages
{
    qsizetype all = 0;
    qsizetype present = 0; // in this process's memory
};

/*! The pages of the huge ones that lie wholly within \a size bytes from \a data; none if the system does not tell. */
Pages pagesWithin(const uchar *data, qsizetype size)
{
    constexpr quint64 presentBit = quint64(1) << 63;
    const auto pageSize = quintptr(sysconf(_SC_PAGESIZE));
    const auto begin = quintptr(data); // only to find the place in the map
    const quintptr first = (begin + hugePage - 1) / hugePage * hugePage;
    const quintptr last = (begin + quintptr(size)) / hugePage * hugePage;

    QFile map(u"/proc/self/pagemap"_qs);
    if (!map.open(QIODevice::ReadOnly | QIODevice::Unbuffered)
        || !map.seek(qint64(first / pageSize * sizeof(quint64)))) {
        return {};
    }
    const QByteArray entries = map.read(qint64((last - first) / pageSize * sizeof(quint64)));
    constexpr qsizetype entrySize = sizeof(quint64);
    Pages pages;
    for (qsizetype i = 0; i + entrySize <= entries.size(); i += entrySize) {
        ++pages.all;
        pages.present += (qFromUnaligned<quint64>(entries.constData() + i) & presentBit) != 0 ? 1 : 0;
    }
    return pages;
}

} // namespace

class tst_CatalogueLoad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void load_touchesNoPageOfTheCatalogue();
};

void tst_CatalogueLoad::load_touchesNoPageOfTheCatalogue()
{
    RUN_IN_FRESH_PROCESS();
    ZYX_zglv6::initQtResources(); // the library is loaded and has been called

    const QResource resource(catalogue);
    const Pages before = pagesWithin(resource.data(), resource.size());
    QVERIFY(before.all >= qsizetype(hugePage) / sysconf(_SC_PAGESIZE)); // one at least
    QCOMPARE(before.present, 0);

    QFile file(catalogue);
    QVERIFY(file.open(QIODevice::ReadOnly)); // inflates it
    const Pages after = pagesWithin(resource.data(), resource.size());
    QCOMPARE(after.all, before.all);
    QCOMPARE(after.present, after.all);
}

QTEST_GUILESS_MAIN(tst_CatalogueLoad)
#include "tst_CatalogueLoad_unix.moc"
