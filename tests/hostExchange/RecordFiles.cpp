// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "hostExchange/RecordFiles.h"

#include <QtCore/QFile>

namespace TestSupport {

QByteArray Loading::bytes(std::uint64_t size) const
{
    return pixels ? QByteArray(pixels.get(), qsizetype(size)) : QByteArray();
}

RecordFiles::RecordFiles()
{
    if (!m_folder.isValid()) {
        qFatal("no temporary folder");
    }
}

std::string RecordFiles::path() const
{
    return QFile::encodeName(dataFile()).toStdString();
}

QString RecordFiles::dataFile() const
{
    return filePath(u"record.data"_qs);
}

QString RecordFiles::imageFile() const
{
    return filePath(u"record.data-image"_qs);
}

QString RecordFiles::filePath(const QString &name) const
{
    return m_folder.filePath(name);
}

bool writeFile(const QString &path, QByteArrayView bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes.data(), bytes.size()) == bytes.size() && file.flush();
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray pixelBytes(qsizetype size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (qsizetype i = 0; i < size; ++i) {
        bytes[i] = char(i * 7 + i / 256 + i / 65536); // no two stretches alike
    }
    return bytes;
}

} // namespace TestSupport
