#pragma once

#include <QtGlobal>

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
    void close()
    {
        if (isOpen())
            ::close(std::exchange(m_number, -1));
    }

private:
    int m_number = -1;
};
