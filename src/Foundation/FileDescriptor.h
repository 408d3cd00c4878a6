#pragma once

#include <cerrno>
#include <unistd.h>
#include <utility>

/// Owns an open file of the system.
class FileDescriptor
{
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int number) : m_number(number) {}
    FileDescriptor(FileDescriptor &&other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    FileDescriptor &operator=(FileDescriptor &&other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~FileDescriptor() { close(); }

    bool isOpen() const { return m_number >= 0; }
    int number() const { return m_number; }
    /// Tells whether all went well. The descriptor is gone whatever the answer is.
    bool close() { return !isOpen() || ::close(std::exchange(m_number, -1)) == 0 || errno == EINTR; }

private:
    int m_number = -1;
};
