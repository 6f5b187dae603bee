// vthost: the command-line stand-in host. Loads the dialog module, lists its
// script functions and calls them with JSON arguments.

#include "dialogs.h"
#include "engine.h"
#include "jsonvalues.h"
#include "kitsupport.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProxyStyle>
#include <QRegularExpression>
#include <QStringList>
#include <QStyleFactory>
#include <QStyleOption>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

enum ExitCode { ExitOk = 0, ExitUsage = 2, ExitCall = 3, ExitModule = 4, ExitDialog = 5 };

const char* const usageText =
    "usage: vthost [options] list [--json]\n"
    "       vthost [options] call NAME [ARG ...]\n"
    "       vthost [options] run FILE.json\n"
    "\n"
    "ARG is JSON, or @FILE holding JSON: an array of strings is a string array,\n"
    "an array of numbers a real vector, {\"values\": [...], \"x\": [...], \"units\": \"\",\n"
    "\"xUnits\": \"\"} a waveform. Each result is printed as one JSON line.\n"
    "\n"
    "options (anywhere on the line):\n"
    "  --module PATH      load this module instead of the one built beside vthost\n"
    "  --config-dir DIR   keep options, preferences and window sizes in DIR\n"
    "  --answer X         answer the dialogs a call opens: accept, cancel or a\n"
    "                     JSON file of steps\n"
    "  --lang LANG        show the dialogs in this language (\"xx\" is the\n"
    "                     pseudo-translation); default: the system's locale\n"
    "  --json             (list) print the functions as JSON\n";

struct Options {
    QStringList words;
    QString module;
    QString configDir;
    QString answer;
    QString lang;
    bool json = false;
    bool help = false;
};

bool parseOptions(int argc, char** argv, Options* o, QString* error)
{
    for (int i = 1; i < argc; ++i) {
        const QString word = QString::fromLocal8Bit(argv[i]);
        if (!word.startsWith(QLatin1String("--"))) {
            o->words << word;
            continue;
        }
        auto value = [&](QString* into) {
            if (i + 1 >= argc) {
                *error = word + QStringLiteral(" needs a value");
                return false;
            }
            *into = QString::fromLocal8Bit(argv[++i]);
            return true;
        };
        if (word == QLatin1String("--module")) {
            if (!value(&o->module))
                return false;
        } else if (word == QLatin1String("--config-dir")) {
            if (!value(&o->configDir))
                return false;
        } else if (word == QLatin1String("--lang")) {
            if (!value(&o->lang))
                return false;
        } else if (word == QLatin1String("--answer")) {
            if (!value(&o->answer))
                return false;
        } else if (word == QLatin1String("--json")) {
            o->json = true;
        } else if (word == QLatin1String("--help")) {
            o->help = true;
        } else {
            *error = QStringLiteral("unknown option ") + word;
            return false;
        }
    }
    return true;
}

void printLine(const QByteArray& line)
{
    std::fwrite(line.constData(), 1, std::size_t(line.size()), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

void printError(const QString& text)
{
    std::fprintf(stderr, "vthost: %s\n", text.toLocal8Bit().constData());
}

QString typesOf(const FunctionDecl* f)
{
    QStringList types;
    for (int i = 0; i < f->maxArgs && i < udf::kMaxArgs; ++i)
        types << QString::number(f->argTypes[i]) + (f->argFlags[i] == 1 ? "*" : "");
    return types.isEmpty() ? QStringLiteral("-") : types.join(',');
}

int list(const vtkit::Engine& engine, bool json)
{
    if (!json) {
        for (const FunctionDecl* f : engine.functions())
            printLine(QStringLiteral("%1 %2 %3 %4 %5")
                          .arg(QString::fromLatin1(f->name))
                          .arg(f->minArgs)
                          .arg(f->maxArgs)
                          .arg(f->isDialogFactory ? "factory" : "direct")
                          .arg(typesOf(f))
                          .toUtf8());
        return ExitOk;
    }
    QJsonArray all;
    for (const FunctionDecl* f : engine.functions()) {
        QJsonArray types;
        QJsonArray flags;
        for (int i = 0; i < f->maxArgs && i < udf::kMaxArgs; ++i) {
            types.append(int(f->argTypes[i]));
            flags.append(int(f->argFlags[i]));
        }
        all.append(QJsonObject{{"name", QString::fromLatin1(f->name)},
                               {"min", f->minArgs},
                               {"max", f->maxArgs},
                               {"factory", f->isDialogFactory != 0},
                               {"argTypes", types},
                               {"argFlags", flags}});
    }
    printLine(QJsonDocument(all).toJson(QJsonDocument::Compact));
    return ExitOk;
}

int exitCodeOf(const vtkit::CallResult& r)
{
    switch (r.status) {
    case vtkit::CallResult::Status::Ok:
        return ExitOk;
    case vtkit::CallResult::Status::UnknownFunction:
    case vtkit::CallResult::Status::BadArgCount:
    case vtkit::CallResult::Status::BadArgKind:
        return ExitCall;
    case vtkit::CallResult::Status::Failed:
        return ExitDialog;
    }
    return ExitCall;
}

// How the dialogs a call opens are answered: by a script, by a person at
// the display, or not at all when there is no display.
struct Answering {
    bool scripted = false;
    bool headless = false;
    vtkit::AnswerScript script;
};

vtkit::CallResult runCall(vtkit::Engine& engine, const Answering& answering, const QString& name,
                          const std::vector<vtkit::ScriptValue>& args)
{
    if (!answering.scripted && !answering.headless)
        return engine.call(name.toStdString(), args);
    vtkit::DialogDriver driver(answering.script); // event lines go to stderr
    driver.setFailOnDialog(!answering.scripted);
    return driver.call(engine, name.toStdString(), args);
}

int callOne(vtkit::Engine& engine, const Answering& answering, const QString& name,
            const std::vector<vtkit::ScriptValue>& args)
{
    const vtkit::CallResult r = runCall(engine, answering, name, args);
    if (r.status != vtkit::CallResult::Status::Ok)
        printError(QString::fromStdString(r.error));
    // A failed call still prints its line, so that `run` keeps one line a call.
    printLine(r.status == vtkit::CallResult::Status::Ok ? vtkit::resultToJson(r) : "null");
    return exitCodeOf(r);
}

int call(vtkit::Engine& engine, const Answering& answering, const QStringList& words)
{
    if (words.size() < 2) {
        printError(QStringLiteral("call needs a function name"));
        return ExitUsage;
    }
    std::vector<vtkit::ScriptValue> args;
    for (int i = 2; i < words.size(); ++i) {
        vtkit::ScriptValue v;
        QString error;
        if (!vtkit::valueFromArgument(words[i], &v, &error)) {
            printError(QStringLiteral("argument %1: %2").arg(i - 1).arg(error));
            return ExitUsage;
        }
        args.push_back(std::move(v));
    }
    return callOne(engine, answering, words[1], args);
}

int run(vtkit::Engine& engine, const Answering& answering, const QStringList& words)
{
    if (words.size() != 2) {
        printError(QStringLiteral("run needs one file"));
        return ExitUsage;
    }
    QFile file(words[1]);
    if (!file.open(QIODevice::ReadOnly)) {
        printError(QStringLiteral("cannot read %1: %2").arg(words[1], file.errorString()));
        return ExitUsage;
    }
    QJsonParseError parseError;
    const QJsonDocument doc = QJsonDocument::fromJson(file.readAll(), &parseError);
    if (parseError.error != QJsonParseError::NoError || !doc.isArray()) {
        printError(QStringLiteral("%1 is not a JSON array of calls").arg(words[1]));
        return ExitUsage;
    }
    // Check every entry first, so that a typo doesn't leave half a run done.
    struct Call {
        QString name;
        std::vector<vtkit::ScriptValue> args;
    };
    std::vector<Call> calls;
    const QJsonArray entries = doc.array();
    for (int i = 0; i < entries.size(); ++i) {
        const QJsonObject o = entries[i].toObject();
        if (!o.value("call").isString() || (o.contains("args") && !o.value("args").isArray())) {
            printError(QStringLiteral("entry %1: needs {\"call\": NAME, \"args\": [...]}").arg(i + 1));
            return ExitUsage;
        }
        Call c{o.value("call").toString(), {}};
        for (const QJsonValue& a : o.value("args").toArray()) {
            vtkit::ScriptValue v;
            QString error;
            if (!vtkit::valueFromJson(a, &v, &error)) {
                printError(QStringLiteral("entry %1: %2").arg(i + 1).arg(error));
                return ExitUsage;
            }
            c.args.push_back(std::move(v));
        }
        calls.push_back(std::move(c));
    }
    int worst = ExitOk;
    for (const Call& c : calls)
        worst = std::max(worst, callOne(engine, answering, c.name, c.args));
    return worst;
}

// The offscreen platform warns about every window it can't size by hints;
// that says nothing about the call, so keep it off the user's terminal.
void quietOffscreenNoise(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    // The offscreen platform says so for every window and popup; nothing
    // a person drawing offscreen can act on.
    for (const char* noise : {"does not support propagateSizeHints", "does not support raise()",
                              "does not support grabbing the keyboard",
                              "does not support grabbing the mouse"})
        if (text.contains(QLatin1String(noise)))
            return;
    std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, text)));
}

// Fusion measures a group box title by its ink and clips the last glyph
// of some titles; the shortfall grows with the title's length (a long
// translated title lost most of a letter), so the title gets the room its
// text advances by, and a little for an overhanging last glyph.
class HostStyle : public QProxyStyle {
public:
    HostStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                         SubControl sub, const QWidget* widget) const override
    {
        QRect r = QProxyStyle::subControlRect(control, option, sub, widget);
        const auto* box = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
        if (control != CC_GroupBox || sub != SC_GroupBoxLabel || !box || box->text.isEmpty())
            return r;
        QString shown = box->text;
        shown.remove(QRegularExpression(QStringLiteral("&(?!&)")));
        const int needed = box->fontMetrics.horizontalAdvance(shown) + 3;
        if (r.width() < needed)
            r.setRight(qMin(r.left() + needed - 1, option->rect.right()));
        return r;
    }
};

// Qt warns on every start without a runtime directory; give it a private one.
void ensureRuntimeDir()
{
    if (qEnvironmentVariableIsSet("XDG_RUNTIME_DIR"))
        return;
    const QByteArray dir = QDir::tempPath().toLocal8Bit() + "/vthost-runtime-"
                           + QByteArray::number(uint(getuid()));
    if (mkdir(dir.constData(), 0700) == 0 || errno == EEXIST)
        qputenv("XDG_RUNTIME_DIR", dir);
}

bool hasDisplay()
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

} // namespace

int main(int argc, char** argv)
{
    Options options;
    QString error;
    if (!parseOptions(argc, argv, &options, &error)) {
        printError(error);
        std::fputs(usageText, stderr);
        return ExitUsage;
    }
    if (options.help) {
        std::fputs(usageText, stdout);
        return ExitOk;
    }
    const QString command = options.words.value(0);
    if (command != QLatin1String("list") && command != QLatin1String("call")
        && command != QLatin1String("run")) {
        if (!command.isEmpty())
            printError(QStringLiteral("unknown command ") + command);
        std::fputs(usageText, stderr);
        return ExitUsage;
    }
    if (!options.configDir.isEmpty())
        vtkit::setConfigDir(options.configDir);

    // Dialogs need a GUI application; without a display they are drawn
    // offscreen and must be answered by a script.
    if (!hasDisplay() && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    ensureRuntimeDir();
    qInstallMessageHandler(&quietOffscreenNoise);
    QApplication app(argc, argv);
    QApplication::setStyle(new HostStyle);
    // A language without a translation shows the texts as written.
    vtkit::installTranslations(options.lang);

    Answering answering;
    answering.headless = QGuiApplication::platformName() == QLatin1String("offscreen")
                         || QGuiApplication::platformName() == QLatin1String("minimal");
    if (!options.answer.isEmpty()) {
        answering.scripted = true;
        if (!vtkit::AnswerScript::fromArgument(options.answer, &answering.script, &error)) {
            printError(error);
            return ExitUsage;
        }
    }

    vtkit::Engine engine;
    const std::string modulePath = options.module.isEmpty() ? vtkit::Engine::defaultModulePath()
                                                             : options.module.toStdString();
    std::string loadError;
    if (!engine.load(modulePath, &loadError)) {
        printError(QString::fromStdString(loadError));
        return ExitModule;
    }

    if (command == QLatin1String("list"))
        return list(engine, options.json);
    if (command == QLatin1String("call"))
        return call(engine, answering, options.words);
    return run(engine, answering, options.words);
}
