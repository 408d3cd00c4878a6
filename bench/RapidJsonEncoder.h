#pragma once

#include "Store/Snapshot.h"

// Our writer scans text eight characters at a time; let the other do so as well.
#define RAPIDJSON_SSE2
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>
#include <string>
#include <vector>

/// The same document written by RapidJSON: the same keys and nesting, with every text, id and date turned
/// into UTF-8 beforehand.
class RapidJsonEncoder
{
public:
    explicit RapidJsonEncoder(const Snapshot &snapshot) : m_snapshot(snapshot)
    {
        m_isCollecting = true;
        rapidjson::StringBuffer ignored;
        Writer writer(ignored);
        write(writer, m_snapshot);
        m_isCollecting = false;
    }

    /// @param expectedSize the room reserved in advance
    rapidjson::StringBuffer encode(std::size_t expectedSize)
    {
        rapidjson::StringBuffer buffer(nullptr, expectedSize);
        Writer writer(buffer);
        m_next = 0;
        write(writer, m_snapshot);
        return buffer;
    }

private:
    using Writer = rapidjson::Writer<rapidjson::StringBuffer>;

    void writeText(Writer &writer, auto makeText)
    {
        if (m_isCollecting)
            m_texts.push_back(makeText());
        const std::string &text = m_isCollecting ? m_texts.back() : m_texts[m_next++];
        writer.String(text.data(), rapidjson::SizeType(text.size()));
    }

    void write(Writer &writer, bool value) { writer.Bool(value); }
    void write(Writer &writer, qint64 value) { writer.Int64(value); }
    void write(Writer &writer, double value) { writer.Double(value); }
    void write(Writer &writer, const QString &value)
    {
        writeText(writer, [&] { return value.toStdString(); });
    }
    void write(Writer &writer, const QUuid &value)
    {
        writeText(writer, [&] { return value.toString(QUuid::WithoutBraces).toUpper().toStdString(); });
    }
    void write(Writer &writer, Timestamp value)
    {
        writeText(writer, [&] {
            const auto text = isoTimestamp(value);
            return std::string(text.data(), text.size());
        });
    }
    template <TabledEnum Enum>
    void write(Writer &writer, Enum value)
    {
        const std::string_view raw = enumRaw(value);
        writer.String(raw.data(), rapidjson::SizeType(raw.size()));
    }
    void write(Writer &writer, const std::set<QString> &values)
    {
        writer.StartArray();
        for (const QString &value : values)
            write(writer, value);
        writer.EndArray();
    }
    void write(Writer &writer, const QMap<QString, QString> &values)
    {
        writer.StartObject();
        for (auto it = values.cbegin(); it != values.cend(); ++it) {
            write(writer, it.key());
            write(writer, it.value());
        }
        writer.EndObject();
    }
    template <typename T>
    void write(Writer &writer, const QList<T> &values)
    {
        writer.StartArray();
        for (const T &value : values)
            write(writer, value);
        writer.EndArray();
    }
    template <typename T>
    void writeField(Writer &writer, std::string_view name, const T &value)
    {
        writer.Key(name.data(), rapidjson::SizeType(name.size()));
        write(writer, value);
    }
    template <typename T>
    void writeField(Writer &writer, std::string_view name, const std::optional<T> &value)
    {
        if (value)
            writeField(writer, name, *value);
    }
    template <FieldListed Record>
    void write(Writer &writer, const Record &record)
    {
        writer.StartObject();
        std::apply([&](const auto &...field) { (writeField(writer, field.name, record.*field.member), ...); },
                   Record::fields());
        writer.EndObject();
    }

    const Snapshot &m_snapshot;
    std::vector<std::string> m_texts;
    std::size_t m_next = 0;
    bool m_isCollecting = false;
};
