// Growable byte array under YArray/YList, the split functions and the
// out-of-memory exception of the templates.
#include "hostsupport.h"

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

namespace {
[[noreturn]] void throwMemory(const char* detail)
{
    char text[VantrellException::TextSize];
    std::snprintf(text, sizeof text, "*** Fatal error, out of memory ***\n%s", detail);
    throw MemoryException(text);
}
} // namespace

// "*** Fatal error, out of memory ***\nDetected in YVector<TYPE>::allocPrim"
void sp_ThrowOutOfMemory(const char* where)
{
    char detail[VantrellException::TextSize];
    std::snprintf(detail, sizeof detail, "Detected in YVector<%s>::allocPrim", where ? where : "");
    throwMemory(detail);
}

// ---------------------------------------------------------------- YArrayData

YArrayData::YArrayData(long long elementSize)
    : m_data(nullptr), m_count(0), m_capacity(0), m_elementSize(elementSize > 0 ? elementSize : 1)
{
}

YArrayData::~YArrayData()
{
    std::free(m_data);
}

void YArrayData::checkAlloc(long long n)
{
    if (n <= m_capacity)
        return;
    const long long limit = static_cast<long long>(SIZE_MAX / 2) / m_elementSize;
    if (n < 0 || n > limit)
        throwMemory("Detected in YArrayData::checkAlloc");
    long long capacity = m_capacity > 0 ? m_capacity : 8;
    while (capacity < n)
        capacity = capacity > limit / 2 ? limit : capacity * 2;
    void* grown = std::realloc(m_data, static_cast<std::size_t>(capacity * m_elementSize));
    if (!grown)
        throwMemory("Detected in YArrayData::checkAlloc");
    m_data = static_cast<char*>(grown);
    m_capacity = capacity;
}

long long YArrayData::addDataAt(void* element, long long index)
{
    const std::size_t size = static_cast<std::size_t>(m_elementSize);
    // The element may live in this array, which checkAlloc can move.
    std::vector<char> copy;
    const char* source = static_cast<const char*>(element);
    if (source && m_data && source >= m_data && source < m_data + m_capacity * m_elementSize) {
        copy.assign(source, source + size);
        source = copy.data();
    }
    checkAlloc(m_count + 1);
    if (index < 0 || index > m_count)
        index = m_count;
    char* at = m_data + index * m_elementSize;
    if (index < m_count)
        std::memmove(at + size, at, static_cast<std::size_t>(m_count - index) * size);
    if (source)
        std::memcpy(at, source, size);
    else
        std::memset(at, 0, size);
    ++m_count;
    return index;
}

void YArrayData::truncate(long long count)
{
    if (count < 0)
        count = 0;
    if (count < m_count)
        m_count = count;
}

void YArrayData::removeBytesAt(long long index)
{
    if (index < 0 || index >= m_count)
        return;
    char* at = m_data + index * m_elementSize;
    std::memmove(at, at + m_elementSize,
                 static_cast<std::size_t>((m_count - index - 1) * m_elementSize));
    --m_count;
}

// -------------------------------------------------------------------- split

void sp_SplitLine(const char* line, char separator, YArray<YString>* out, int maxParts)
{
    if (!out)
        return;
    out->clear();
    if (!line || !*line)
        return;
    const char* start = line;
    for (;;) {
        if (maxParts > 0 && out->count() >= maxParts)
            return;
        const char* stop = start;
        while (*stop && *stop != separator)
            ++stop;
        const std::string part(start, static_cast<std::size_t>(stop - start));
        out->add(YString(part.c_str()));
        if (!*stop)
            return;
        start = stop + 1; // a trailing separator gives a last, empty part
    }
}

void sp_ScanLine(const char* line, const char* separators, YArray<YString>* out, int maxParts)
{
    if (!out)
        return;
    out->clear();
    if (!line)
        return;
    if (!separators)
        separators = "";
    auto isSeparator = [separators](char c) { return c != '\0' && std::strchr(separators, c); };
    const char* p = line;
    for (;;) {
        while (*p && isSeparator(*p))
            ++p;
        if (!*p)
            return;
        if (maxParts > 0 && out->count() >= maxParts)
            return;
        const char* start = p;
        while (*p && !isSeparator(*p))
            ++p;
        const std::string part(start, static_cast<std::size_t>(p - start));
        out->add(YString(part.c_str()));
    }
}
