// The stand-in host's script engine: loads a dialog module with dlopen,
// builds call records from script values, runs handlers and factories, and
// serves the host's own script functions to nested calls.
#pragma once

#include "udf.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#define VT_ENGINE_API __attribute__((visibility("default")))

class QDialog;

namespace vtkit {

// A script value: a string array, or a real vector with optional x values.
struct VT_ENGINE_API ScriptValue {
    enum class Kind { Strings, Reals };

    Kind kind = Kind::Strings;
    std::vector<std::string> strings;
    std::vector<double> values;
    std::vector<double> x; // a waveform when hasX
    bool hasX = false;
    std::string units;
    std::string xUnits;
    // An empty array from a script that could be either kind; the call adapts
    // it to the argument's declared type.
    bool untyped = false;

    static ScriptValue fromStrings(std::vector<std::string> strings);
    static ScriptValue fromReals(std::vector<double> values, std::string units = {});
    static ScriptValue waveform(std::vector<double> values, std::vector<double> x,
                                std::string units = {}, std::string xUnits = {});
    bool operator==(const ScriptValue& other) const;
};

struct VT_ENGINE_API CallResult {
    enum class Status {
        Ok,              // the handler ran, with or without a result
        UnknownFunction,
        BadArgCount,     // outside minArgs..maxArgs
        BadArgKind,      // an argument of the wrong kind for its type code
        Failed           // the handler threw, or a dialog step failed
    };

    Status status = Status::Ok;
    std::string error;  // a line for a person when status isn't Ok
    bool hasResult = false;
    ScriptValue value;
    int notifications = 0; // NotifyHost calls during the call
};

// A host script function callable from handlers through CallScriptFunction.
// args are the records the handler passed; result is made into an ArgRecord
// whose buffers the engine owns until the outermost call ends.
using HostFunction =
    std::function<bool(const ArgRecord* args, int nargs, ScriptValue& result, int& error)>;

// Runs a factory's dialog: loads, shows modally, collects. Returns true when
// accepted and fills result. Provided by the dialog side of the engine.
using DialogRunner = std::function<bool(QDialog* dialog, UserFunctionInterface* call,
                                        ScriptValue& result, std::string& error)>;

class VT_ENGINE_API Engine {
public:
    Engine();
    ~Engine();
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    // Loads the module; on failure error says why and the engine stays empty.
    bool load(const std::string& path, std::string* error = nullptr);
    bool isLoaded() const;

    // The records in list order, from the head.
    const std::vector<const FunctionDecl*>& functions() const;
    const FunctionDecl* find(const std::string& name) const;

    CallResult call(const std::string& name, const std::vector<ScriptValue>& args);

    // Replaces any function of that name; XfromY, PWLDialog (pwldialog.h)
    // and GraphImageCapture (graphcapture.h) are registered from the start.
    void registerHostFunction(const std::string& name, HostFunction fn);
    void removeHostFunction(const std::string& name);

    void setDialogRunner(DialogRunner runner);

    // The module built beside the running program: <exe dir>/../lib/libvtdialogs.so.
    static std::string defaultModulePath();

private:
    struct Private;
    std::unique_ptr<Private> d;
};

// The host's "XfromY": x values where a waveform crosses a level, linearly
// interpolated. args: waveform, level, (unused), selector (1 rising,
// -1 falling, 0 both; a record without data means rising).
VT_ENGINE_API bool xFromY(const ArgRecord* args, int nargs, ScriptValue& result, int& error);

} // namespace vtkit
