#include "engine.h"
#include "graphcapture.h"

#include "dialogs.h"
#include "pwldialog.h"
#include "hostsupport.h"

#include <QDialog>

#include <dlfcn.h>
#include <unistd.h>

#include <climits>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <exception>
#include <limits>

#if defined(__SANITIZE_ADDRESS__)
#define VT_ADDRESS_SANITIZER 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VT_ADDRESS_SANITIZER 1
#endif
#endif
#ifdef VT_ADDRESS_SANITIZER
#include <sanitizer/asan_interface.h>
#endif

namespace vtkit {

ScriptValue ScriptValue::fromStrings(std::vector<std::string> strings)
{
    ScriptValue v;
    v.kind = Kind::Strings;
    v.strings = std::move(strings);
    return v;
}

ScriptValue ScriptValue::fromReals(std::vector<double> values, std::string units)
{
    ScriptValue v;
    v.kind = Kind::Reals;
    v.values = std::move(values);
    v.units = std::move(units);
    return v;
}

ScriptValue ScriptValue::waveform(std::vector<double> values, std::vector<double> x,
                                  std::string units, std::string xUnits)
{
    ScriptValue v = fromReals(std::move(values), std::move(units));
    v.x = std::move(x);
    v.hasX = true;
    v.xUnits = std::move(xUnits);
    return v;
}

bool ScriptValue::operator==(const ScriptValue& o) const
{
    return kind == o.kind && strings == o.strings && values == o.values && hasX == o.hasX
           && x == o.x && units == o.units && xUnits == o.xUnits;
}

namespace {

// DupString copies of one call, packed into blocks that are freed when the
// call ends: splitting a large text makes a copy per part, and a malloc and
// a free for each would cost more than the splitting.
class StringArena {
public:
    StringArena() = default;
    StringArena(const StringArena&) = delete;
    StringArena& operator=(const StringArena&) = delete;
    ~StringArena()
    {
        for (const Block& b : m_blocks) {
            unpoison(b.data, b.size);
            std::free(b.data);
        }
    }

    // Null when memory is out.
    char* copy(const char* text, std::size_t size)
    {
        char* at = nullptr;
        if (size > kBlockSize / 8) {
            at = newBlock(size, false); // a long text gets a block of its own
        } else {
            const std::size_t step = (size + kGap + kAlign - 1) / kAlign * kAlign;
            if (step > m_left) {
                m_next = newBlock(kBlockSize, true);
                m_left = m_next ? kBlockSize : 0;
            }
            if (m_next) {
                at = m_next;
                m_next += step;
                m_left -= step;
            }
        }
        if (at) {
            unpoison(at, size);
            std::memcpy(at, text, size);
        }
        return at;
    }

private:
    struct Block {
        char* data;
        std::size_t size;
    };
    static constexpr std::size_t kBlockSize = 64 * 1024;
#ifdef VT_ADDRESS_SANITIZER
    // Copies stand apart on poisoned memory, so that a handler writing past
    // one is caught rather than overwriting the next.
    static constexpr std::size_t kAlign = 8, kGap = 8;
    static void poison(char* p, std::size_t n) { ASAN_POISON_MEMORY_REGION(p, n); }
    static void unpoison(char* p, std::size_t n) { ASAN_UNPOISON_MEMORY_REGION(p, n); }
#else
    static constexpr std::size_t kAlign = 1, kGap = 0;
    static void poison(char*, std::size_t) {}
    static void unpoison(char*, std::size_t) {}
#endif

    char* newBlock(std::size_t size, bool shared)
    {
        m_blocks.reserve(m_blocks.size() + 1);
        char* block = static_cast<char*>(std::malloc(size));
        if (block) {
            m_blocks.push_back(Block{block, size});
            if (shared)
                poison(block, size);
        }
        return block;
    }

    std::vector<Block> m_blocks;
    char* m_next = nullptr;
    std::size_t m_left = 0;
};

// Everything one call hands out. Buffers stay put (deque) until the call
// ends, because a handler may keep any pointer it was given until it returns.
struct CallContext {
    const std::map<std::string, HostFunction>* hostFunctions = nullptr;

    std::vector<std::vector<char*>> argStrings;
    std::deque<std::vector<char*>> stringResults;
    std::deque<std::vector<double>> realBuffers;
    std::deque<std::string> texts;
    StringArena duplicates; // DupString copies

    enum class Made { None, Strings, Reals } made = Made::None;
    std::vector<char*>* strings = nullptr;
    std::vector<double>* reals = nullptr;
    std::vector<double>* xs = nullptr;
    std::size_t stringCount = 0;
    std::size_t realCount = 0;
    std::size_t xCount = 0;
    const char* units = "";
    const char* xUnits = "";
    int notifications = 0;

    const char* keep(const char* text)
    {
        texts.emplace_back(text ? text : "");
        return texts.back().c_str();
    }
};

// DupString takes no record, so copies go to the innermost running call.
thread_local std::vector<CallContext*> t_calls;

CallContext* contextOf(UserFunctionInterface* ufi)
{
    return ufi ? reinterpret_cast<CallContext*>(static_cast<std::uintptr_t>(ufi->hostWord))
               : nullptr;
}

char** makeStringArray(UserFunctionInterface* ufi, int n)
{
    CallContext* c = contextOf(ufi);
    if (!c)
        return nullptr;
    // One spare entry so that n == 0 still gives a valid pointer.
    const std::size_t count = static_cast<std::size_t>(n > 0 ? n : 0);
    c->stringResults.emplace_back(count + 1, nullptr);
    c->strings = &c->stringResults.back();
    c->stringCount = count;
    c->made = CallContext::Made::Strings;
    c->reals = nullptr;
    c->xs = nullptr;
    return c->strings->data();
}

// Zero-filled, with a spare element so that n == 0 still gives a valid pointer.
std::vector<double>* newReals(CallContext* c, int n, std::size_t* count)
{
    *count = static_cast<std::size_t>(n > 0 ? n : 0);
    c->realBuffers.emplace_back(*count + 1, 0.0);
    return &c->realBuffers.back();
}

double* makeRealVector(UserFunctionInterface* ufi, int n, const char* units)
{
    CallContext* c = contextOf(ufi);
    if (!c)
        return nullptr;
    c->reals = newReals(c, n, &c->realCount);
    c->units = c->keep(units);
    c->made = CallContext::Made::Reals;
    c->strings = nullptr;
    return c->reals->data();
}

double* makeXVector(UserFunctionInterface* ufi, int n, const char* units)
{
    CallContext* c = contextOf(ufi);
    if (!c)
        return nullptr;
    c->xs = newReals(c, n, &c->xCount);
    c->xUnits = c->keep(units);
    return c->xs->data();
}

char* dupString(const char* text)
{
    const char* src = text ? text : "";
    const std::size_t n = std::strlen(src) + 1;
    char* copy = nullptr;
    if (!t_calls.empty()) {
        copy = t_calls.back()->duplicates.copy(src, n);
    } else if ((copy = static_cast<char*>(std::malloc(n)))) {
        // Outside a call nothing would free it: the copy is the caller's,
        // as the host's own DupString gives it.
        std::memcpy(copy, src, n);
    }
    if (!copy)
        throw MemoryException("*** Fatal error, out of memory ***\nDetected in DupString");
    return copy;
}

void notifyHost(UserFunctionInterface* ufi, int)
{
    if (CallContext* c = contextOf(ufi))
        ++c->notifications;
}

void toRecord(CallContext* c, const ScriptValue& v, ArgRecord* out)
{
    std::memset(out, 0, sizeof *out);
    if (v.kind == ScriptValue::Kind::Strings) {
        c->stringResults.emplace_back();
        std::vector<char*>& ptrs = c->stringResults.back();
        for (const std::string& s : v.strings)
            ptrs.push_back(const_cast<char*>(c->keep(s.c_str())));
        ptrs.push_back(nullptr);
        out->data = ptrs.data();
        out->count = static_cast<std::uint32_t>(v.strings.size());
        out->kind = ArgKindStrings;
    } else {
        c->realBuffers.emplace_back(v.values);
        out->data = c->realBuffers.back().data();
        if (v.hasX) {
            c->realBuffers.emplace_back(v.x);
            out->xData = c->realBuffers.back().data();
        }
        out->count = static_cast<std::uint32_t>(v.values.size());
        out->kind = ArgKindReal;
    }
    out->units = c->keep(v.units.c_str());
    out->xUnits = c->keep(v.xUnits.c_str());
}

bool callScriptFunction(UserFunctionInterface* ufi, const char* name, ArgRecord* args, int nargs,
                        ArgRecord* result, int* error)
{
    int localError = 0;
    int& err = error ? *error : localError;
    err = 0;
    CallContext* c = contextOf(ufi);
    if (!c || !name || !result || nargs < 0 || (nargs > 0 && !args)) {
        err = 1;
        return false;
    }
    auto it = c->hostFunctions->find(name);
    if (it == c->hostFunctions->end()) {
        err = 1;
        return false;
    }
    ScriptValue value;
    bool ok = false;
    try {
        ok = it->second(args, nargs, value, err);
    } catch (const std::exception&) {
        ok = false;
    }
    if (!ok && err == 0)
        err = 1;
    if (ok)
        toRecord(c, value, result);
    return ok && err == 0;
}

std::string kindName(std::uint32_t code)
{
    return code == ArgReals ? "a real vector" : "a string array";
}

} // namespace

struct Engine::Private {
    void* module = nullptr;
    std::vector<const FunctionDecl*> functions;
    std::map<std::string, HostFunction> hostFunctions;
    DialogRunner dialogRunner;
};

Engine::Engine() : d(new Private)
{
    d->hostFunctions["XfromY"] = &xFromY;
    d->hostFunctions["PWLDialog"] = &pwlDialog;
    d->hostFunctions["GraphImageCapture"] = &graphImageCapture;
    d->dialogRunner = &runBoundDialog;
}

// The module stays loaded: it has no unload entry point, and its records are
// static storage that other engines in the process may still be walking.
Engine::~Engine() = default;

bool Engine::load(const std::string& path, std::string* error)
{
    auto fail = [&](const std::string& why) {
        if (error)
            *error = why;
        d->functions.clear();
        d->module = nullptr;
        return false;
    };
    void* handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!handle) {
        const char* why = dlerror();
        return fail("cannot load module " + path + ": " + (why ? why : "unknown error"));
    }
    auto assign = reinterpret_cast<AssignCallbacksFn>(dlsym(handle, "udf_AssignCallbacks"));
    auto getDecls = reinterpret_cast<GetFunctionDeclsFn>(dlsym(handle, "udf_GetFunctionDecls"));
    if (!assign || !getDecls)
        return fail(path + " is not a dialog module: udf_AssignCallbacks or "
                           "udf_GetFunctionDecls is missing");

    // The module only stores the table; zeros are what an embedding host
    // without callbacks of its own would pass.
    alignas(16) unsigned char callbacks[udf::kCallbackTableSize] = {};
    assign(callbacks);

    FunctionDecl* first = nullptr;
    std::uint8_t flag = 0xff;
    std::uint32_t sizes[3] = {0, 0, 0};
    FunctionDecl* head = getDecls(&first, &flag, sizes);
    if (sizes[0] != udf::kInterfaceSize || sizes[1] != udf::kDeclSize
        || sizes[2] != udf::kInterfaceVersion)
        return fail(path + " was built for another host interface (record sizes "
                    + std::to_string(sizes[0]) + "/" + std::to_string(sizes[1]) + ", version "
                    + std::to_string(sizes[2]) + "; this host has "
                    + std::to_string(udf::kInterfaceSize) + "/" + std::to_string(udf::kDeclSize)
                    + ", version " + std::to_string(udf::kInterfaceVersion) + ")");
    if (head != first)
        return fail(path + " returned two different list heads");

    std::vector<const FunctionDecl*> list;
    for (const FunctionDecl* f = head; f; f = f->next) {
        if (list.size() >= 4096)
            return fail(path + " has a function list that does not end");
        list.push_back(f);
    }
    d->module = handle;
    d->functions = std::move(list);
    return true;
}

bool Engine::isLoaded() const
{
    return d->module != nullptr;
}

const std::vector<const FunctionDecl*>& Engine::functions() const
{
    return d->functions;
}

const FunctionDecl* Engine::find(const std::string& name) const
{
    for (const FunctionDecl* f : d->functions)
        if (std::strncmp(f->name, name.c_str(), sizeof f->name) == 0)
            return f;
    return nullptr;
}

void Engine::registerHostFunction(const std::string& name, HostFunction fn)
{
    d->hostFunctions[name] = std::move(fn);
}

void Engine::removeHostFunction(const std::string& name)
{
    d->hostFunctions.erase(name);
}

void Engine::setDialogRunner(DialogRunner runner)
{
    d->dialogRunner = std::move(runner);
}

CallResult Engine::call(const std::string& name, const std::vector<ScriptValue>& args)
{
    CallResult r;
    const FunctionDecl* f = find(name);
    if (!f) {
        r.status = CallResult::Status::UnknownFunction;
        r.error = "unknown function " + name;
        return r;
    }
    const int n = static_cast<int>(args.size());
    if (n < f->minArgs || n > f->maxArgs || n > udf::kMaxArgs) {
        r.status = CallResult::Status::BadArgCount;
        r.error = name + " takes " + std::to_string(f->minArgs) + " to "
                  + std::to_string(f->maxArgs) + " arguments, got " + std::to_string(n);
        return r;
    }
    for (int i = 0; i < n; ++i) {
        const std::uint32_t code = f->argTypes[i];
        const bool isStrings = args[i].kind == ScriptValue::Kind::Strings;
        if (args[i].untyped || (code == ArgStrings && isStrings) || (code == ArgReals && !isStrings))
            continue;
        r.status = CallResult::Status::BadArgKind;
        r.error = "argument " + std::to_string(i + 1) + " of " + name + " must be "
                  + kindName(code);
        return r;
    }

    CallContext c;
    c.hostFunctions = &d->hostFunctions;

    UserFunctionInterface ufi;
    std::memset(&ufi, 0, sizeof ufi);
    ufi.hostWord = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(&c));
    ufi.argCount = n;
    ufi.MakeStringArray = &makeStringArray;
    ufi.MakeRealVector = &makeRealVector;
    ufi.MakeXVector = &makeXVector;
    ufi.DupString = &dupString;
    ufi.CallScriptFunction = &callScriptFunction;
    ufi.NotifyHost = &notifyHost;

    // Argument data is lent, not copied: a 10-million-point waveform should
    // cost nothing to pass. Handlers read it; they may overwrite the records.
    c.argStrings.resize(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i) {
        const ScriptValue& v = args[i];
        ArgRecord& a = ufi.args[i];
        const bool asStrings = v.untyped ? f->argTypes[i] != ArgReals
                                         : v.kind == ScriptValue::Kind::Strings;
        if (asStrings) {
            std::vector<char*>& ptrs = c.argStrings[static_cast<std::size_t>(i)];
            for (const std::string& s : v.strings)
                ptrs.push_back(const_cast<char*>(s.c_str()));
            ptrs.push_back(nullptr);
            a.data = ptrs.data();
            a.count = static_cast<std::uint32_t>(v.strings.size());
            a.kind = ArgKindStrings;
        } else {
            a.data = const_cast<double*>(v.values.data());
            a.count = static_cast<std::uint32_t>(v.values.size());
            if (v.hasX && v.x.size() >= v.values.size())
                a.xData = const_cast<double*>(v.x.data());
            a.kind = ArgKindReal;
        }
        a.units = v.units.c_str();
        a.xUnits = v.xUnits.c_str();
    }

    t_calls.push_back(&c);
    struct Pop {
        ~Pop() { t_calls.pop_back(); }
    } pop;

    try {
        if (f->isDialogFactory) {
            auto factory = reinterpret_cast<FactoryHandler>(f->handler);
            if (!d->dialogRunner) {
                r.status = CallResult::Status::Failed;
                r.error = name + " opens a dialog, and this engine has no dialog runner";
                return r;
            }
            QDialog* dialog = factory(&ufi, nullptr);
            if (dialog) {
                ScriptValue collected;
                std::string why;
                const bool accepted = d->dialogRunner(dialog, &ufi, collected, why);
                if (!why.empty()) {
                    r.status = CallResult::Status::Failed;
                    r.error = why;
                }
                if (accepted) {
                    r.hasResult = true;
                    r.value = std::move(collected);
                }
            }
            r.notifications = c.notifications;
            return r;
        }
        auto handler = reinterpret_cast<DirectHandler>(f->handler);
        handler(&ufi);
    } catch (const VantrellException& e) {
        r.status = CallResult::Status::Failed;
        r.error = name + ": " + e.text();
        return r;
    } catch (const std::exception& e) {
        r.status = CallResult::Status::Failed;
        r.error = name + ": " + e.what();
        return r;
    }

    r.notifications = c.notifications;
    if (c.made == CallContext::Made::Strings && c.strings) {
        r.hasResult = true;
        r.value.kind = ScriptValue::Kind::Strings;
        r.value.strings.reserve(c.stringCount);
        for (std::size_t i = 0; i < c.stringCount; ++i) {
            const char* s = (*c.strings)[i];
            r.value.strings.emplace_back(s ? s : "");
        }
    } else if (c.made == CallContext::Made::Reals && c.reals) {
        r.hasResult = true;
        r.value.kind = ScriptValue::Kind::Reals;
        r.value.values.assign(c.reals->begin(), c.reals->begin() + long(c.realCount));
        r.value.units = c.units;
        if (c.xs) {
            r.value.hasX = true;
            r.value.x.assign(c.xs->begin(), c.xs->begin() + long(c.xCount));
            r.value.xUnits = c.xUnits;
        }
    }
    return r;
}

std::string Engine::defaultModulePath()
{
    char exe[PATH_MAX];
    const ssize_t n = readlink("/proc/self/exe", exe, sizeof exe - 1);
    if (n <= 0)
        return "libvtdialogs.so";
    exe[n] = '\0';
    std::string dir(exe);
    dir.erase(dir.find_last_of('/'));
    return dir + "/../lib/libvtdialogs.so";
}

} // namespace vtkit
