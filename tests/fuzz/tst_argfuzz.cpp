// The argument-shape fuzzer: every function the module registers, taken
// from its function list as the host sees it, is called many times with
// random arguments (counts around the declared range, odd strings, huge and
// non-finite numbers, waveforms with x in and out of order) and each dialog
// is answered at random by Ok or Cancel. A call may refuse its arguments or
// leave its dialog unanswered; it may not crash, trip a sanitizer, throw
// into the host or run past the per-call limit.
//
// Seeded and reproducible: each call's arguments depend only on the seed,
// the function's name and the call's number, so a function added later
// does not change the calls of the others. On failure the call is printed
// with the line that replays it alone.
//
// Environment: VT_FUZZ_SEED (default fixed), VT_FUZZ_CALLS (calls per
// function), VT_FUZZ_FUNCTION and VT_FUZZ_CALL (replay one function or one
// call), VT_FUZZ_LIMIT_MS (per call).
#include "dialogs.h"
#include "dialogtest.h"
#include "engine.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QtTest>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <mutex>
#include <random>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

#if defined(__SANITIZE_ADDRESS__) && __has_include(<sanitizer/common_interface_defs.h>)
#include <sanitizer/common_interface_defs.h>
#define VT_FUZZ_SANITIZED 1
#endif

using vtkit::CallResult;
using vtkit::ScriptValue;

namespace {

constexpr std::uint64_t kDefaultSeed = 0x5eed18;
constexpr int kDefaultCalls = 12;
constexpr int kDefaultLimitMs = 30000;
// A dialog that refuses its answer is closed after this; a driver failure
// is not a fault, so it should cost little.
constexpr int kDriverWaitMs = 800;

std::uint64_t envNumber(const char* name, std::uint64_t fallback)
{
    const char* text = std::getenv(name);
    if (!text || !*text)
        return fallback;
    char* end = nullptr;
    const unsigned long long v = std::strtoull(text, &end, 0);
    return end && *end == '\0' ? v : fallback;
}

std::uint64_t mix(std::uint64_t x)
{
    x += 0x9e3779b97f4a7c15ULL;
    x = (x ^ (x >> 30)) * 0xbf58476d1ce4e5b9ULL;
    x = (x ^ (x >> 27)) * 0x94d049bb133111ebULL;
    return x ^ (x >> 31);
}

std::uint64_t nameHash(const char* name)
{
    std::uint64_t h = 1469598103934665603ULL;
    for (; *name; ++name)
        h = (h ^ static_cast<unsigned char>(*name)) * 1099511628211ULL;
    return h;
}

// ------------------------------------------------------------ the shapes

class Shapes {
public:
    explicit Shapes(std::uint64_t seed) : m_rng(seed) {}

    int below(int n) { return n <= 1 ? 0 : int(m_rng() % std::uint64_t(n)); }
    bool chance(int percent) { return below(100) < percent; }

    // Mostly a few elements, sometimes up to 40.
    int length() { return chance(70) ? below(4) : below(41); }

    std::string token()
    {
        static const char* const fixed[] = {
            "", "", "a", "on", "off", "x", "Gate", "Level", "name", "0", "1", "2", "-1", "10",
            "2.9", "10k", "1u", "4.7n", "-3.3Meg", "2.2e-9", "1mil", "100f", "1e300", "-1e300",
            "1e-300", "nan", "NaN", "inf", "-inf", "2147483647", "2147483648", "-2147483649",
            "4294967296", "9223372036854775807", "9223372036854775808",
            "99999999999999999999999999999", ";", "|", ":", "\\", "{", "}", "\"", "'", ",", " ",
            "\t", "\n", "a;b;;", "a|b|c", "|", "||", ";;", "a:b:c", "\\;", "\\|", "\\\\",
            "{x}", "{", "{a|b}", "\"q\"", "NSEG=2 X0=0 Y0=1 X1=1 Y1=0", "(", ")", "=", "*",
            "\xb5V", "\xe9t\xe9", "\xff", "\xc2\xb5", "\xe6\x97\xa5\xe6\x9c\xac", "\xc3",
            "<x/>", "<a><b>", "&amp;", "%s%n", "-", "+", "."};
        constexpr int n = int(sizeof fixed / sizeof fixed[0]);
        if (chance(90))
            return fixed[below(n)];
        std::string s(std::size_t(1 + below(8)), ' ');
        for (char& c : s)
            c = char(1 + below(255));
        return s;
    }

    std::string text()
    {
        if (chance(3)) {
            // A long text of pieces, separators among them.
            std::string s;
            while (s.size() < 5000)
                s += token();
            s.resize(5000);
            return s;
        }
        if (chance(60))
            return token();
        std::string s;
        for (int i = 1 + below(6); i > 0; --i)
            s += token();
        return s;
    }

    double number()
    {
        static const double fixed[] = {0,     1,      -1,     1e300,         -1e300,
                                       1e-300, 2147483648.0, -2147483648.0, 9223372036854775808.0,
                                       -9223372036854775808.0, 2.9, -0.5, 0.5, 3, 10, 1000,
                                       1e18, -1e18, 4294967296.0};
        if (chance(5))
            return std::numeric_limits<double>::quiet_NaN();
        if (chance(3))
            return chance(50) ? HUGE_VAL : -HUGE_VAL;
        if (chance(70))
            return fixed[below(int(sizeof fixed / sizeof fixed[0]))];
        if (chance(50))
            return below(20);
        return std::uniform_real_distribution<double>(-1e3, 1e3)(m_rng);
    }

    ScriptValue strings()
    {
        std::vector<std::string> out(static_cast<std::size_t>(length()));
        for (std::string& s : out)
            s = text();
        return ScriptValue::fromStrings(std::move(out));
    }

    ScriptValue reals(bool maybeWave)
    {
        const int n = chance(10) ? below(300) : length();
        std::vector<double> values(static_cast<std::size_t>(n));
        const bool smooth = chance(50);
        for (int i = 0; i < n; ++i)
            values[std::size_t(i)] = smooth ? std::sin(i * 0.7) * 2 : number();
        if (!maybeWave || chance(30))
            return ScriptValue::fromReals(std::move(values), units());
        std::vector<double> x(static_cast<std::size_t>(n));
        const int order = below(4); // ascending, repeated steps, descending, random
        for (int i = 0; i < n; ++i) {
            double v = i;
            if (order == 1)
                v = i / 2;
            else if (order == 2)
                v = n - i;
            else if (order == 3)
                v = number();
            x[std::size_t(i)] = v * (chance(50) ? 1e-6 : 1);
        }
        return ScriptValue::waveform(std::move(values), std::move(x), units(), units());
    }

    std::string units()
    {
        static const char* const fixed[] = {"", "PT_None", "Voltage", "Time", "Frequency"};
        return chance(90) ? fixed[below(5)] : token();
    }

    // The argument count: mostly within the declared range, sometimes just
    // outside it, which the host refuses before the module sees it.
    int count(const FunctionDecl& f)
    {
        const int lo = f.minArgs;
        const int hi = std::min<int>(f.maxArgs, udf::kMaxArgs);
        if (chance(8))
            return std::max(0, chance(50) ? lo - 1 : hi + 1);
        if (hi - lo > 6 && chance(85))
            return lo + below(std::min(hi - lo, 6) + 1);
        return lo + below(hi - lo + 1);
    }

    std::vector<ScriptValue> args(const FunctionDecl& f)
    {
        std::vector<ScriptValue> out;
        const int n = count(f);
        for (int i = 0; i < n; ++i) {
            const std::uint32_t type = i < udf::kMaxArgs ? f.argTypes[i] : ArgStrings;
            if (chance(4)) {
                ScriptValue empty;
                empty.untyped = true;
                out.push_back(empty);
            } else if (chance(4)) {
                // The wrong kind: the host refuses it.
                out.push_back(type == ArgReals ? strings() : reals(false));
            } else {
                out.push_back(type == ArgReals ? reals(true) : strings());
            }
        }
        return out;
    }

private:
    std::mt19937_64 m_rng;
};

// ------------------------------------------------------- printing a call

std::string jsonString(const std::string& bytes)
{
    // Bytes that are not UTF-8 are shown as their Latin-1 characters.
    const QString text = QString::fromUtf8(bytes.data(), int(bytes.size()));
    const bool utf8 = text.toUtf8() == QByteArray::fromStdString(bytes);
    const QString shown = utf8 ? text : QString::fromLatin1(bytes.data(), int(bytes.size()));
    const QByteArray json = QJsonDocument(QJsonArray{shown}).toJson(QJsonDocument::Compact);
    return json.mid(1, json.size() - 2).toStdString();
}

std::string jsonNumber(double v)
{
    if (std::isnan(v))
        return "NaN";
    if (std::isinf(v))
        return v > 0 ? "Infinity" : "-Infinity";
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%.17g", v);
    return buffer;
}

std::string jsonValue(const ScriptValue& v)
{
    auto numbers = [](const std::vector<double>& values) {
        std::string out = "[";
        for (std::size_t i = 0; i < values.size(); ++i)
            out += (i ? "," : "") + jsonNumber(values[i]);
        return out + "]";
    };
    if (v.untyped)
        return "[]";
    if (v.kind == ScriptValue::Kind::Strings) {
        std::string out = "[";
        for (std::size_t i = 0; i < v.strings.size(); ++i)
            out += (i ? "," : "") + jsonString(v.strings[i]);
        return out + "]";
    }
    if (!v.hasX && v.units.empty())
        return numbers(v.values);
    std::string out = "{\"values\":" + numbers(v.values) + ",\"units\":" + jsonString(v.units);
    if (v.hasX)
        out += ",\"x\":" + numbers(v.x) + ",\"xUnits\":" + jsonString(v.xUnits);
    return out + "}";
}

std::string shellQuoted(const std::string& text)
{
    std::string out = "'";
    for (char c : text)
        out += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return out + "'";
}

// ------------------------------------------------ the call being made now

// Kept in static storage so that a crash handler or a sanitizer's death
// callback can print it without allocating.
char g_current[1 << 20];
std::atomic<bool> g_inCall{false};

void printCurrent()
{
    if (!g_inCall.load())
        return;
    const char head[] = "\n*** argfuzz: the call that failed ***\n";
    ssize_t ignored = write(STDERR_FILENO, head, sizeof head - 1);
    ignored = write(STDERR_FILENO, g_current, std::strlen(g_current));
    (void)ignored;
}

// What the module and Qt print while thousands of odd calls run is noise.
void quiet(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
        printCurrent();
        std::abort();
    }
}

#ifndef VT_FUZZ_SANITIZED
void onSignal(int sig)
{
    printCurrent();
    std::signal(sig, SIG_DFL);
    std::raise(sig);
}
#endif

// Ends the process when one call runs past the limit: a hang inside a
// handler never returns to the test to be reported.
class Watchdog {
public:
    explicit Watchdog(int limitMs) : m_limit(limitMs), m_thread([this] { watch(); }) {}
    ~Watchdog()
    {
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            m_stop = true;
        }
        m_wake.notify_all();
        m_thread.join();
    }
    void begin()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_deadline = std::chrono::steady_clock::now() + m_limit;
        m_armed = true;
        m_wake.notify_all();
    }
    void end()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_armed = false;
    }

private:
    void watch()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        while (!m_stop) {
            if (!m_armed) {
                m_wake.wait(lock);
                continue;
            }
            if (m_wake.wait_until(lock, m_deadline) == std::cv_status::timeout && m_armed
                && std::chrono::steady_clock::now() >= m_deadline) {
                std::fprintf(stderr, "\n*** argfuzz: a call ran past %lld ms ***\n",
                             static_cast<long long>(m_limit.count()));
                printCurrent();
                std::_Exit(124);
            }
        }
    }

    std::chrono::milliseconds m_limit;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::chrono::steady_clock::time_point m_deadline;
    bool m_armed = false;
    bool m_stop = false;
    std::thread m_thread;
};

} // namespace

class TestArgFuzz : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void calls_data();
    void calls();

private:
    vtkit::Engine m_engine;
    std::uint64_t m_seed = kDefaultSeed;
    int m_calls = kDefaultCalls;
    std::unique_ptr<Watchdog> m_watchdog;
};

void TestArgFuzz::initTestCase()
{
    QVERIFY(dialogtest::loadModule(m_engine));
    m_seed = envNumber("VT_FUZZ_SEED", kDefaultSeed);
    m_calls = int(std::min<std::uint64_t>(envNumber("VT_FUZZ_CALLS", kDefaultCalls), 1u << 30));
    m_watchdog.reset(new Watchdog(int(envNumber("VT_FUZZ_LIMIT_MS", kDefaultLimitMs))));
#ifdef VT_FUZZ_SANITIZED
    __sanitizer_set_death_callback(&printCurrent);
#else
    for (int sig : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT})
        std::signal(sig, &onSignal);
#endif
    std::fprintf(stderr, "argfuzz: seed %llu, %d calls per function\n",
                 static_cast<unsigned long long>(m_seed), m_calls);
}

void TestArgFuzz::cleanup()
{
    QVERIFY(dialogtest::noTopLevelsLeft());
}

// One row per registered function, in list order.
void TestArgFuzz::calls_data()
{
    QTest::addColumn<QString>("function");
    const QByteArray only = qgetenv("VT_FUZZ_FUNCTION");
    for (const FunctionDecl* f : m_engine.functions()) {
        if (only.isEmpty() || only == f->name)
            QTest::newRow(f->name) << QString::fromLatin1(f->name);
    }
}

void TestArgFuzz::calls()
{
    QFETCH(QString, function);
    const std::string name = function.toStdString();
    const FunctionDecl* f = m_engine.find(name);
    QVERIFY(f);

    const bool one = !qEnvironmentVariableIsEmpty("VT_FUZZ_CALL");
    const int first = one ? int(envNumber("VT_FUZZ_CALL", 0)) : 0;
    const int last = one ? first + 1 : m_calls;
    int ran = 0;
    int answered = 0;
    for (int i = first; i < last; ++i) {
        Shapes shapes(mix(m_seed ^ mix(nameHash(f->name)) ^ mix(std::uint64_t(i) + 1)));
        const std::vector<ScriptValue> args = shapes.args(*f);
        const bool accept = shapes.chance(50);

        std::string text = "  function " + name + ", call " + std::to_string(i) + ", seed "
                           + std::to_string(m_seed) + ", answer " + (accept ? "accept" : "cancel")
                           + "\n  arguments (JSON; NaN/Infinity as such, non-UTF-8 bytes as "
                             "Latin-1):\n   ";
        for (const ScriptValue& a : args)
            text += " " + shellQuoted(jsonValue(a));
        text += "\n  replay: VT_FUZZ_SEED=" + std::to_string(m_seed) + " VT_FUZZ_FUNCTION=" + name
                + " VT_FUZZ_CALL=" + std::to_string(i) + " tst_argfuzz\n";
        std::snprintf(g_current, sizeof g_current, "%s", text.c_str());

        vtkit::DialogDriver driver(accept ? vtkit::AnswerScript::accept()
                                          : vtkit::AnswerScript::cancel(),
                                   [](const QByteArray&) {});
        driver.setWaitMs(kDriverWaitMs);
        CallResult result;
        bool threw = false;
        g_inCall = true;
        const QtMessageHandler previous = qInstallMessageHandler(&quiet);
        m_watchdog->begin();
        try {
            // The engine's own result, not the driver's: a call that threw
            // must not pass for an unanswered dialog.
            driver.run([&] { result = m_engine.call(name, args); });
        } catch (...) {
            threw = true;
        }
        m_watchdog->end();
        qInstallMessageHandler(previous);
        g_inCall = false;

        if (threw || result.status == CallResult::Status::Failed) {
            std::fprintf(stderr, "\n*** argfuzz: %s ***\n%s",
                         threw ? "an exception escaped the engine"
                               : ("the call threw: " + result.error).c_str(),
                         text.c_str());
            QFAIL("a call threw into the host; see above");
        }
        if (result.status == CallResult::Status::Ok) {
            ++ran;
            answered += !driver.failed();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    // The rest were refused by the host (argument count or kind); a call
    // that ran but was not answered opened no dialog, or one that would
    // not close.
    qDebug("%s: %d calls, %d ran, %d dialogs answered as asked", f->name, last - first, ran,
           answered);
}

QTEST_MAIN(TestArgFuzz)
#include "tst_argfuzz.moc"
