#include "Support/Spelling/SpellingDictionary.h"

#include "Support/Spelling/Hunspell.h"

#include <QFile>

std::expected<SpellingDictionary, QString> SpellingDictionary::load(const QString &path)
{
    const auto &library = Hunspell::library();
    if (!library)
        return std::unexpected(library.error());
    QString rules = path;
    rules.replace(rules.lastIndexOf(u'.'), rules.size(), QStringLiteral(".aff"));
    Handle handle(library->create(QFile::encodeName(rules).constData(), QFile::encodeName(path).constData()),
                  library->destroy);
    if (!handle)
        return std::unexpected(QStringLiteral("%1 can't be loaded.").arg(path));
    // "ISO8859-15" and "microsoft-cp1251" are called otherwise elsewhere.
    QByteArray encoding = library->encoding(handle.get());
    encoding.replace("ISO8859", "ISO-8859").replace("microsoft-cp", "windows-");
    SpellingDictionary dictionary(std::move(handle), encoding.constData());
    if (!dictionary.m_encoder.isValid() || !dictionary.m_decoder.isValid())
        return std::unexpected(QStringLiteral("%1 is written in an unknown encoding.").arg(path));
    return dictionary;
}

SpellingDictionary::SpellingDictionary(Handle handle, const char *encoding)
    : m_handle(std::move(handle)),
      m_encoder(encoding, QStringConverter::Flag::Stateless),
      m_decoder(encoding, QStringConverter::Flag::Stateless)
{
}

bool SpellingDictionary::isRight(const QString &word)
{
    const QByteArray bytes = m_encoder.encode(word);
    // What the language has no letters for is no word of it.
    if (m_encoder.hasError()) {
        m_encoder.resetState();
        return false;
    }
    return Hunspell::library()->spell(m_handle.get(), bytes.constData()) != 0;
}

QStringList SpellingDictionary::suggestions(const QString &word)
{
    const QByteArray bytes = m_encoder.encode(word);
    if (m_encoder.hasError()) {
        m_encoder.resetState();
        return {};
    }
    char **list = nullptr;
    const int count = Hunspell::library()->suggest(m_handle.get(), &list, bytes.constData());
    QStringList suggestions;
    for (int i = 0; i < count; ++i)
        suggestions.append(m_decoder.decode(QByteArrayView(list[i])));
    Hunspell::library()->freeList(m_handle.get(), &list, count);
    return suggestions;
}
