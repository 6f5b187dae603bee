// The host support library as the dialog module sees it: strings and
// containers, options and preferences, engineering numbers, help and window
// services. The module uses nothing of the host beyond this header, the
// widget header and the call record, so it stays a drop-in for the real host.
#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>
#include <typeinfo>

#define VT_SUPPORT_API __attribute__((visibility("default")))

class QWidget;
struct UserFunctionInterface;

// ---------------------------------------------------------------- exceptions

// Base of the host's exceptions: a code and a fixed text field. Thrown
// through handlers into the host; the module never catches them.
class VT_SUPPORT_API VantrellException {
public:
    enum { TextSize = 1000 };
    explicit VantrellException(int code = 9, const char* text = nullptr);
    virtual ~VantrellException();

    int code() const { return m_code; }
    const char* text() const { return m_text; }

protected:
    void setText(const char* text);

    int m_code;
    char m_text[TextSize];
};

class VT_SUPPORT_API MemoryException : public VantrellException {
public:
    explicit MemoryException(const char* text);
    ~MemoryException() override;
};

// ------------------------------------------------------------------- strings

class TempString;

// Reference-counted narrow string held in one pointer. Copies share the
// text until one of them is changed.
class VT_SUPPORT_API YString {
public:
    YString();
    YString(const YString& other);
    YString(const char* text);
    explicit YString(int number); // the number in decimal
    YString(const TempString& temp);
    YString& operator=(const YString& other);
    YString& operator=(const char* text);
    ~YString();

    // Begins a concatenation: a.concat("x").concat("y") is read into a new
    // YString. The temporary lives until the end of the full expression and
    // a little longer, never across calls.
    TempString& concat(const char* text) const;

    // Removes one pair of enclosing quotes, any of the characters in quotes.
    void stripQuotes(const char* quotes, bool both);

    unsigned hashValue() const; // stable across runs and processes

    const char* c_str() const; // never null
    operator const char*() const { return c_str(); }
    int length() const;
    bool isEmpty() const { return length() == 0; }
    bool operator==(const YString& other) const;
    bool operator!=(const YString& other) const { return !(*this == other); }

private:
    struct Rep;
    Rep* m_rep;
};

// Result of YString::concat, continued by its own concat.
class VT_SUPPORT_API TempString {
public:
    TempString();
    ~TempString();
    TempString(const TempString&) = delete;
    TempString& operator=(const TempString&) = delete;

    TempString& concat(const char* text);
    const char* c_str() const;
    int length() const { return m_length; }

private:
    friend class YString;
    void assign(const char* a, int aLength, const char* b);

    char* m_text;
    int m_length;
    int m_capacity;
};

VT_SUPPORT_API YString toYs(const QString& text);
VT_SUPPORT_API QString toQs(const YString& text);
VT_SUPPORT_API bool equals(const QString& a, const QString& b);

// Holds a narrow (8-bit) copy of a QString for its own lifetime.
class VT_SUPPORT_API Tocs {
public:
    explicit Tocs(const QString& text);
    ~Tocs();
    Tocs(const Tocs&) = delete;
    Tocs& operator=(const Tocs&) = delete;
    operator const char*() const { return m_text; }

private:
    char* m_text;
};

// ---------------------------------------------------------------- containers

// Growable array of fixed-size elements, moved as bytes. The typed
// templates below construct and destroy elements in place.
class VT_SUPPORT_API YArrayData {
public:
    explicit YArrayData(long long elementSize);
    ~YArrayData();
    YArrayData(const YArrayData&) = delete;
    YArrayData& operator=(const YArrayData&) = delete;

    // Inserts a byte copy of element at index (clamped to 0..count; a
    // negative index appends) and returns the index used.
    long long addDataAt(void* element, long long index);
    // Makes room for at least n elements; throws MemoryException.
    void checkAlloc(long long n);

    long long count() const { return m_count; }
    void* at(long long index) const { return m_data + index * m_elementSize; }
    // Forgets elements from index on without touching their bytes.
    void truncate(long long count);
    void removeBytesAt(long long index);

private:
    char* m_data;
    long long m_count;
    long long m_capacity;
    long long m_elementSize;
};

template <typename T>
class YArray {
public:
    YArray() : m_data(sizeof(T)) {}
    ~YArray() { clear(); }
    YArray(const YArray&) = delete;
    YArray& operator=(const YArray&) = delete;

    long long count() const { return m_data.count(); }
    long long size() const { return m_data.count(); }
    bool isEmpty() const { return m_data.count() == 0; }
    T& operator[](long long i) { return *static_cast<T*>(m_data.at(i)); }
    const T& operator[](long long i) const { return *static_cast<const T*>(m_data.at(i)); }

    void add(const T& value) { insertAt(value, count()); }
    void insertAt(const T& value, long long index)
    {
        // Copy first: value may live in this array, which growing moves.
        alignas(T) unsigned char raw[sizeof(T)];
        T* copy = new (raw) T(value);
        try {
            m_data.checkAlloc(count() + 1);
        } catch (...) {
            copy->~T();
            throw;
        }
        m_data.addDataAt(raw, index);
    }
    void removeAt(long long index)
    {
        if (index < 0 || index >= count())
            return;
        (*this)[index].~T();
        m_data.removeBytesAt(index);
    }
    void clear()
    {
        for (long long i = 0; i < count(); ++i)
            (*this)[i].~T();
        m_data.truncate(0);
    }

private:
    YArrayData m_data;
};

template <typename T>
class YList : public YArray<T> {};

// Name of an element type in the host's messages.
template <typename T> struct YTypeName { static const char* name() { return typeid(T).name(); } };
template <> struct YTypeName<double> { static const char* name() { return "double"; } };
template <> struct YTypeName<bool> { static const char* name() { return "bool"; } };
template <> struct YTypeName<const char*> { static const char* name() { return "const char*"; } };

[[noreturn]] VT_SUPPORT_API void sp_ThrowOutOfMemory(const char* where);

// The small vector of this code base. Storage made by allocPrim is owned.
template <typename T>
class YVector {
public:
    YVector() = default;
    explicit YVector(long long n) { resize(n); }
    virtual ~YVector() { if (m_owned) std::free(m_data); }
    YVector(const YVector&) = delete;
    YVector& operator=(const YVector&) = delete;

    // Allocates n elements with malloc; null when the vector doesn't own
    // its storage. Throws MemoryException when memory runs out.
    T* allocPrim(long long n)
    {
        if (!m_owned)
            return nullptr;
        T* p = nullptr;
        if (n >= 0 && static_cast<unsigned long long>(n) <= SIZE_MAX / sizeof(T))
            p = static_cast<T*>(std::malloc(static_cast<std::size_t>(n ? n : 1) * sizeof(T)));
        if (!p)
            sp_ThrowOutOfMemory(YTypeName<T>::name());
        return p;
    }
    // Sets the size to n elements, all cleared to zero.
    void resize(long long n)
    {
        T* p = allocPrim(n);
        for (long long i = 0; i < n; ++i)
            p[i] = T();
        std::free(m_data);
        m_data = p;
        m_end = p + n;
        m_size = n;
        m_capacity = n;
    }
    void append(const T& value)
    {
        // Copy first: value may live in the storage that growing frees.
        const T copy = value;
        if (m_size == m_capacity) {
            const long long grown = m_capacity ? m_capacity * 2 : 8;
            T* p = allocPrim(grown);
            for (long long i = 0; i < m_size; ++i)
                p[i] = m_data[i];
            std::free(m_data);
            m_data = p;
            m_capacity = grown;
        }
        m_data[m_size++] = copy;
        m_end = m_data + m_size;
    }
    void clear() { m_size = 0; m_end = m_data; }

    long long size() const { return m_size; }
    T* data() { return m_data; }
    const T* data() const { return m_data; }
    T& operator[](long long i) { return m_data[i]; }
    const T& operator[](long long i) const { return m_data[i]; }

private:
    T* m_data = nullptr;
    T* m_end = nullptr;
    long long m_size = 0;
    long long m_capacity = 0;
    bool m_owned = true;
};

// Splits line at separator; empties out first. "" gives no part, otherwise
// n separators give n+1 parts, empty ones kept. A positive maxParts keeps
// the first maxParts parts and drops the rest of the line.
VT_SUPPORT_API void sp_SplitLine(const char* line, char separator, YArray<YString>* out,
                                 int maxParts);
// Splits at any of separators, a run of them counting as one; no empty parts.
VT_SUPPORT_API void sp_ScanLine(const char* line, const char* separators, YArray<YString>* out,
                                int maxParts);

// ------------------------------------------------------ options and settings

VT_SUPPORT_API bool sp_GetBoolOption(const char* name, bool* found);
VT_SUPPORT_API YString sp_GetStringOption(const char* name);
VT_SUPPORT_API YString sp_GetStringOption(const char* name, bool* found);
VT_SUPPORT_API int sp_GetIntOption(const char* name);
VT_SUPPORT_API void sp_WriteOption(const YString& name, const YString& value);
VT_SUPPORT_API void sp_WriteOption(const YString& name, bool value);
// Without this, a string literal value would pick the bool overload.
VT_SUPPORT_API void sp_WriteOption(const YString& name, const char* value);

// Static declaration of a user option with its default.
class VT_SUPPORT_API MakeOption {
public:
    MakeOption(const char* source, int line, const YString& name, const YString& defaultValue,
               bool user);
};

// Non-zero if section/key exists; copies at most bufferSize bytes and a NUL.
VT_SUPPORT_API int cfgman_GetConfigSetting(const char* section, const char* key, char* buffer,
                                           int bufferSize, bool);
VT_SUPPORT_API bool cfgman_WriteConfigSetting(const char* section, const char* key,
                                              const char* value);

// ------------------------------------------------------------------- numbers

// "10k" is 1e4, "1.5MEG" 1.5e6, "10kOhm" 1e4. No number gives 0 and end at
// the start of text.
VT_SUPPORT_API double sp_ConvertEngToReal(const char* text, char** end);
VT_SUPPORT_API double sp_ConvertEngToReal(const QString& text, char** end);
// 62831.853 at 6 digits is "62.8319k"; 1e6 is "1Meg"; 0 is "0".
VT_SUPPORT_API YString sp_ConvertRealToJSEng(double value, int digits, bool);
// The interval [*lower, *lower+1] of ascending values that holds value; the
// last sample belongs to the last interval. Below the array *lower is -1,
// above it count.
VT_SUPPORT_API void sp_BinarySearch(const double* values, long long count, double value,
                                    long long* lower, long long* upper, int mode);

// ------------------------------------------------------ help, window, files

enum RunHelpMode { RunHelpIndex = 0, RunHelpKeyword = 1, RunHelpContext = 2 };

VT_SUPPORT_API void sp_RunHelp(RunHelpMode mode, const char* topic, int* out, int* reserved);
VT_SUPPORT_API int sp_GetHelpContextId(const YString& name);
VT_SUPPORT_API void sp_AutoSaveDialogDims(QWidget* widget);
VT_SUPPORT_API void sp_ApplyVantrellIcon(QWidget* widget);
VT_SUPPORT_API YString sp_GetCwd();
VT_SUPPORT_API bool sp_ExistFile(const char* path);
VT_SUPPORT_API YString sp_GetVantrellDefaultExtension(const char* kind);
VT_SUPPORT_API bool sp_GetVantrellFileExtension(const char* kind, YList<YString>* out);
VT_SUPPORT_API bool sp_PasteTextFromClipboard(YString* text);

// ----------------------------------------------------------- call record

// Argument argIndex when present and of the asked kind, else null and 0.
VT_SUPPORT_API void sp_GetStringIfVector(UserFunctionInterface* call, int argIndex,
                                         const char* const** dataOut, unsigned* countOut);
VT_SUPPORT_API void sp_GetRealIfVector(UserFunctionInterface* call, int argIndex,
                                       const double** dataOut, unsigned* countOut);
VT_SUPPORT_API char** sp_MakeStringResult(UserFunctionInterface* call, int n);
