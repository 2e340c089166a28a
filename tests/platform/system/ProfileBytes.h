// A temporary folder with one profile file, looked at as bytes.
#pragma once

#include <QFile>
#include <QTemporaryDir>

class ProfileBytes
{
public:
    ProfileBytes() = default;
    explicit ProfileBytes(const QByteArray &bytes) { setBytes(bytes); }

    QString folder() const { return m_folder.path(); }
    QString name() const { return m_folder.filePath(QStringLiteral("DemoData.ini")); }

    void setBytes(const QByteArray &bytes) const
    {
        QFile file(name());
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) qFatal("no file to test with");
    }

    QByteArray bytes() const
    {
        QFile file(name());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir m_folder;
};
