#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

namespace quillmere {

/// One group of a key file.
class KeyGroup
{
public:
    /// Without the blanks around it; empty if it is not there.
    QString value(const char *key) const { return QString::fromUtf8(values_.value(key)); }
    void insert(const QByteArray &key, const QByteArray &value) { values_.insert(key, value); }

private:
    QHash<QByteArray, QByteArray> values_;
};

/// The groups of a desktop entry or of the index of an icon theme, by name. Empty if the file
/// cannot be read; beyond 512 KiB nothing is read. Of a key that comes twice the last one counts.
QHash<QString, KeyGroup> keyFile(const QString &path);

} // namespace quillmere
