#pragma once

#include "Foundation/Timestamp.h"

#include <QByteArray>
#include <QStringView>
#include <QUuid>

#include <functional>
#include <string_view>
#include <utility>

/// Streams compact JSON as UTF-8: no blanks, a slash written as `\/`, upper-case ids, keys in the order in
/// which they are given. The caller keeps the brackets balanced. The document is kept whole, or handed over
/// in pieces as it grows.
class JsonWriter
{
public:
    /// Reserves room for about this many bytes, so that a large document is not copied while it grows.
    explicit JsonWriter(qsizetype expectedSize = 4096);

    /// Takes the next bytes of the document; they hold during the call only.
    using Sink = std::function<void(QByteArrayView bytes)>;
    /// Hands the document over in pieces of at most about this many bytes, instead of keeping it whole.
    JsonWriter(Sink sink, qsizetype pieceSize);

    void beginObject();
    void endObject();
    void beginArray();
    void endArray();

    /// A key that needs no escapes: the names of field lists.
    void fieldName(std::string_view plainName);
    /// A key taken from data.
    void key(QStringView name);

    /// Half a surrogate pair standing alone is written as U+FFFD, since no reader takes it.
    void text(QStringView value);
    /// Text known to be plain ASCII without quotes, controls, slashes or backslashes, as raw enum texts are.
    void plainText(std::string_view value);
    void boolean(bool value);
    void integer(qint64 value);
    /// The shortest form that reads back as the same number; what JSON can't hold (NaN, infinities) becomes
    /// 0.
    void number(double value);
    void uuid(const QUuid &value);
    void timestamp(Timestamp value);

    /// The document so far; the writer is empty afterwards.
    QByteArray take();
    /// Hands over what the sink has not had yet.
    void flush();

private:
    /// Makes room for a value of at most this many bytes, puts the comma that it may need before it and
    /// returns where it goes.
    char *startValue(qsizetype bytes)
    {
        char *const to = room(bytes + 1);
        *to = ',';
        return to + std::exchange(m_needsComma, true);
    }
    /// Makes room for this many more bytes and returns where they go.
    char *room(qsizetype bytes)
    {
        if (m_end - m_at < bytes)
            grow(bytes);
        return m_at;
    }
    void grow(qsizetype bytes);
    qsizetype used() const { return m_at ? m_at - m_bytes.constData() : 0; }
    void open(char bracket);
    void close(char bracket);
    void escaped(QStringView value);

    Sink m_sink;
    QByteArray m_bytes;
    /// Where the next byte goes, and the end of the room there is.
    char *m_at = nullptr;
    char *m_end = nullptr;
    bool m_needsComma = false;
};
