#pragma once

#include <QLibrary>

#include <expected>
#include <type_traits>

/// A shared library that is loaded at its first use and not with the program, so that no start waits for it
/// and for those that it brings along. It stays loaded until the program ends.
class LazyLibrary
{
public:
    /// @param name without "lib" and its ending
    /// @param version of the binary interface that the headers at the build belong to
    LazyLibrary(const QString &name, int version) : m_library(name, version) {}

    /// Sets a pointer to a function of the library, or to null if the library does not have it.
    template <typename Function>
    void resolve(Function *&function, const char *name)
    {
        function = reinterpret_cast<Function *>(m_library.resolve(name));
        m_isComplete = m_isComplete && function;
    }

    /// Whether every function asked for is there; else why not.
    std::expected<void, QString> state() const
    {
        if (!m_isComplete)
            return std::unexpected(m_library.errorString());
        return {};
    }

private:
    QLibrary m_library;
    bool m_isComplete = true;
};
