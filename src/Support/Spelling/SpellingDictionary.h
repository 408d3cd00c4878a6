#pragma once

#include <QStringDecoder>
#include <QStringEncoder>
#include <QStringList>

#include <expected>
#include <memory>

struct Hunhandle;

/// A loaded dictionary. It belongs to the thread that loads it, since what is asked of it may take long.
class SpellingDictionary
{
public:
    /// @param path of the ".dic" file; the ".aff" file lies beside it
    static std::expected<SpellingDictionary, QString> load(const QString &path);

    bool isRight(const QString &word);
    /// What may have been meant, the likeliest first.
    QStringList suggestions(const QString &word);

private:
    using Handle = std::unique_ptr<Hunhandle, void (*)(Hunhandle *)>;

    SpellingDictionary(Handle handle, const char *encoding);

    Handle m_handle;
    QStringEncoder m_encoder;
    QStringDecoder m_decoder;
};
