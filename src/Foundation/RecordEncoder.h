#pragma once

#include "Foundation/EnumTable.h"
#include "Foundation/FieldList.h"
#include "Foundation/JsonWriter.h"

#include <QList>
#include <QMap>

#include <optional>
#include <set>

/// Writes records as JSON by walking their field lists. Members that hold nothing are left out.
namespace RecordEncoder
{
inline void write(JsonWriter &json, bool value)
{
    json.boolean(value);
}

inline void write(JsonWriter &json, qint64 value)
{
    json.integer(value);
}

inline void write(JsonWriter &json, double value)
{
    json.number(value);
}

inline void write(JsonWriter &json, const QString &value)
{
    json.text(value);
}

inline void write(JsonWriter &json, const QUuid &value)
{
    json.uuid(value);
}

inline void write(JsonWriter &json, Timestamp value)
{
    json.timestamp(value);
}

template <TabledEnum Enum>
void write(JsonWriter &json, Enum value)
{
    json.plainText(enumRaw(value));
}

inline void write(JsonWriter &json, const std::set<QString> &values)
{
    json.beginArray();
    for (const QString &value : values)
        json.text(value);
    json.endArray();
}

inline void write(JsonWriter &json, const QMap<QString, QString> &values)
{
    json.beginObject();
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        json.key(it.key());
        json.text(it.value());
    }
    json.endObject();
}

template <FieldListed Record>
void write(JsonWriter &json, const Record &record);

template <typename T>
void write(JsonWriter &json, const QList<T> &values)
{
    json.beginArray();
    for (const T &value : values)
        write(json, value);
    json.endArray();
}

template <typename T>
void writeField(JsonWriter &json, std::string_view name, const T &value)
{
    json.fieldName(name);
    write(json, value);
}

template <typename T>
void writeField(JsonWriter &json, std::string_view name, const std::optional<T> &value)
{
    if (value)
        writeField(json, name, *value);
}

template <FieldListed Record>
void write(JsonWriter &json, const Record &record)
{
    json.beginObject();
    std::apply([&](const auto &...field) { (writeField(json, field.name, record.*field.member), ...); },
               Record::fields());
    json.endObject();
}
} // namespace RecordEncoder
