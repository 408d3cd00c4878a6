#pragma once

#include "Foundation/FieldList.h"

#include <QList>
#include <QMap>
#include <QString>

#include <optional>
#include <set>

/// How many bytes a record keeps in memory that it does not share with another version of it.
namespace RecordSize
{
template <typename T>
qint64 unshared(const T &, const T *)
{
    return 0;
}

inline qint64 unshared(const QString &text, const QString *other)
{
    return other && other->constData() == text.constData() ? 0 : text.size() * qint64(sizeof(QChar));
}

inline qint64 unshared(const std::set<QString> &texts, const std::set<QString> *)
{
    qint64 bytes = 0;
    for (const QString &text : texts)
        bytes += qint64(sizeof text) + 32 + text.size() * qint64(sizeof(QChar));
    return bytes;
}

inline qint64 unshared(const QMap<QString, QString> &texts, const QMap<QString, QString> *other)
{
    qint64 bytes = 0;
    if (other && other->isSharedWith(texts))
        return bytes;
    for (auto it = texts.cbegin(); it != texts.cend(); ++it)
        bytes +=
            qint64(2 * sizeof(QString)) + 32 + (it.key().size() + it.value().size()) * qint64(sizeof(QChar));
    return bytes;
}

template <FieldListed Record>
qint64 unshared(const Record &record, const Record *other);

template <typename T>
qint64 unshared(const std::optional<T> &value, const std::optional<T> *other)
{
    return value ? unshared(*value, other && *other ? &**other : nullptr) : 0;
}

/// Of two lists the elements at their beginnings and ends are usually the same, and share their contents.
template <typename T>
qint64 unshared(const QList<T> &list, const QList<T> *other)
{
    if (other && other->constData() == list.constData() && other->size() == list.size())
        return 0;
    qint64 bytes = list.size() * qint64(sizeof(T));
    const qsizetype common = other ? std::min(list.size(), other->size()) : 0;
    qsizetype front = 0;
    while (front < common && unshared(list.at(front), &other->at(front)) == 0)
        ++front;
    qsizetype back = 0;
    while (back < common - front &&
           unshared(list.at(list.size() - 1 - back), &other->at(other->size() - 1 - back)) == 0)
        ++back;
    for (qsizetype i = front; i < list.size() - back; ++i)
        bytes += unshared(list.at(i), static_cast<const T *>(nullptr));
    return bytes;
}

/// @param other the version that is kept elsewhere; null if there is none
template <FieldListed Record>
qint64 unshared(const Record &record, const Record *other)
{
    return std::apply(
        [&](const auto &...field) {
            return (unshared(record.*field.member, other ? &(other->*field.member) : nullptr) + ... +
                    qint64(0));
        },
        Record::fields());
}
} // namespace RecordSize
