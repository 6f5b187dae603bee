// Strings and exceptions of the support library.
//
// Text crosses between the module and the host as 8-bit bytes. toYs, toQs
// and Tocs use Latin-1 so that any byte sequence round-trips exactly
// (QString -> bytes -> QString for code points up to U+00FF, bytes ->
// QString -> bytes for every byte).
#include "hostsupport.h"

#include <QByteArray>

#include <cstdio>
#include <cstring>

static_assert(sizeof(YString) == sizeof(void*), "YString is held in one pointer");

// ---------------------------------------------------------------- exceptions

VantrellException::VantrellException(int code, const char* text) : m_code(code)
{
    m_text[0] = '\0';
    setText(text);
}

VantrellException::~VantrellException() = default;

void VantrellException::setText(const char* text)
{
    if (!text) {
        m_text[0] = '\0';
        return;
    }
    std::size_t n = std::strlen(text);
    if (n > TextSize - 1)
        n = TextSize - 1;
    std::memmove(m_text, text, n);
    m_text[n] = '\0';
}

MemoryException::MemoryException(const char* text) : VantrellException(9, text)
{
    m_code = 5;
}

MemoryException::~MemoryException() = default;

// ------------------------------------------------------------------- YString

// Shared representation: reference count, length and the text (NUL
// terminated), in one malloc block. The empty string has no Rep at all.
struct YString::Rep {
    int refs;
    int length;
    char text[1];

    static Rep* make(const char* a, std::size_t aLength, const char* b = nullptr,
                     std::size_t bLength = 0)
    {
        const std::size_t total = aLength + bLength;
        if (total == 0)
            return nullptr;
        if (total > 0x7ffffff0u)
            sp_ThrowOutOfMemory("char");
        Rep* rep = static_cast<Rep*>(std::malloc(offsetof(Rep, text) + total + 1));
        if (!rep)
            sp_ThrowOutOfMemory("char");
        rep->refs = 1;
        rep->length = static_cast<int>(total);
        if (aLength)
            std::memcpy(rep->text, a, aLength);
        if (bLength)
            std::memcpy(rep->text + aLength, b, bLength);
        rep->text[total] = '\0';
        return rep;
    }
};

namespace {
void releaseRep(void* p)
{
    // Rep is private; the layout starts with the count.
    int* refs = static_cast<int*>(p);
    if (p && --*refs == 0)
        std::free(p);
}
} // namespace

YString::YString() : m_rep(nullptr) {}

YString::YString(const YString& other) : m_rep(other.m_rep)
{
    if (m_rep)
        ++m_rep->refs;
}

YString::YString(const char* text) : m_rep(text ? Rep::make(text, std::strlen(text)) : nullptr) {}

YString::YString(int number) : m_rep(nullptr)
{
    char buffer[32];
    const int n = std::snprintf(buffer, sizeof buffer, "%d", number);
    m_rep = Rep::make(buffer, static_cast<std::size_t>(n));
}

YString::YString(const TempString& temp)
    : m_rep(Rep::make(temp.c_str(), static_cast<std::size_t>(temp.length())))
{
}

YString& YString::operator=(const YString& other)
{
    if (other.m_rep)
        ++other.m_rep->refs;
    releaseRep(m_rep);
    m_rep = other.m_rep;
    return *this;
}

YString& YString::operator=(const char* text)
{
    // text may point into our own representation: build first.
    Rep* rep = text ? Rep::make(text, std::strlen(text)) : nullptr;
    releaseRep(m_rep);
    m_rep = rep;
    return *this;
}

YString::~YString()
{
    releaseRep(m_rep);
}

const char* YString::c_str() const
{
    return m_rep ? m_rep->text : "";
}

int YString::length() const
{
    return m_rep ? m_rep->length : 0;
}

bool YString::operator==(const YString& other) const
{
    if (m_rep == other.m_rep)
        return true;
    return length() == other.length() &&
           std::memcmp(c_str(), other.c_str(), static_cast<std::size_t>(length())) == 0;
}

// FNV-1a, 32 bits, over the bytes of the text: the same value in every run
// and process ("" hashes to 2166136261).
unsigned YString::hashValue() const
{
    std::uint32_t h = 2166136261u;
    const unsigned char* p = reinterpret_cast<const unsigned char*>(c_str());
    for (int i = 0; i < length(); ++i) {
        h ^= p[i];
        h *= 16777619u;
    }
    return h;
}

// Removes the first and last character when there are at least two, the
// first is one of quotes and the last equals the first. The second argument
// is accepted and ignored (callers pass false).
void YString::stripQuotes(const char* quotes, bool)
{
    const int n = length();
    if (n < 2 || !quotes)
        return;
    const char first = m_rep->text[0];
    if (first == '\0' || !std::strchr(quotes, first) || m_rep->text[n - 1] != first)
        return;
    Rep* rep = Rep::make(m_rep->text + 1, static_cast<std::size_t>(n - 2));
    releaseRep(m_rep);
    m_rep = rep;
}

// The concatenation temporaries come from a ring of 16 TempStrings made on
// first use (a function-local static pointer to a heap array, never freed).
// A temporary stays valid until 16 further concatenations have begun, which
// covers a full expression and a little more, never across calls.
TempString& YString::concat(const char* text) const
{
    static TempString* ring = new TempString[16];
    static unsigned next = 0;
    TempString& t = ring[next++ % 16];
    t.assign(c_str(), length(), text);
    return t;
}

// ---------------------------------------------------------------- TempString

TempString::TempString() : m_text(nullptr), m_length(0), m_capacity(0) {}

TempString::~TempString()
{
    std::free(m_text);
}

const char* TempString::c_str() const
{
    return m_text ? m_text : "";
}

void TempString::assign(const char* a, int aLength, const char* b)
{
    // a or b may point into this very buffer: always build a new one.
    const std::size_t bLength = b ? std::strlen(b) : 0;
    const std::size_t total = static_cast<std::size_t>(aLength) + bLength;
    if (total > 0x7ffffff0u)
        sp_ThrowOutOfMemory("char");
    char* text = static_cast<char*>(std::malloc(total + 1));
    if (!text)
        sp_ThrowOutOfMemory("char");
    if (aLength)
        std::memcpy(text, a, static_cast<std::size_t>(aLength));
    if (bLength)
        std::memcpy(text + aLength, b, bLength);
    text[total] = '\0';
    std::free(m_text);
    m_text = text;
    m_length = static_cast<int>(total);
    m_capacity = static_cast<int>(total + 1);
}

// Appends in place; a null text is taken as "".
TempString& TempString::concat(const char* text)
{
    if (!text || !*text)
        return *this;
    const std::size_t n = std::strlen(text);
    const std::size_t total = static_cast<std::size_t>(m_length) + n;
    if (total > 0x7ffffff0u)
        sp_ThrowOutOfMemory("char");
    if (total + 1 > static_cast<std::size_t>(m_capacity)) {
        std::size_t capacity = static_cast<std::size_t>(m_capacity) * 2;
        if (capacity < total + 1)
            capacity = total + 1;
        char* grown = static_cast<char*>(std::malloc(capacity));
        if (!grown)
            sp_ThrowOutOfMemory("char");
        if (m_length)
            std::memcpy(grown, m_text, static_cast<std::size_t>(m_length));
        std::memcpy(grown + m_length, text, n); // text may be our old buffer
        std::free(m_text);
        m_text = grown;
        m_capacity = static_cast<int>(capacity);
    } else {
        std::memmove(m_text + m_length, text, n);
    }
    m_length = static_cast<int>(total);
    m_text[m_length] = '\0';
    return *this;
}

// ------------------------------------------------------------ QString bridge

YString toYs(const QString& text)
{
    const QByteArray bytes = text.toLatin1();
    return YString(bytes.constData());
}

QString toQs(const YString& text)
{
    return QString::fromLatin1(text.c_str(), text.length());
}

bool equals(const QString& a, const QString& b)
{
    return a == b;
}

Tocs::Tocs(const QString& text) : m_text(nullptr)
{
    const QByteArray bytes = text.toLatin1();
    m_text = new char[static_cast<std::size_t>(bytes.size()) + 1];
    std::memcpy(m_text, bytes.constData(), static_cast<std::size_t>(bytes.size()) + 1);
}

Tocs::~Tocs()
{
    delete[] m_text;
}
