// Binary records shared by the host and the dialog module.
//
// Every field, width and offset here is a contract with a host that was built
// separately; the static_asserts at the end keep a careless edit from
// silently breaking it. Both sides include this header.
#pragma once

#include <cstddef>
#include <cstdint>

struct UserFunctionInterface;

// One argument of a script call, or the result of a nested call.
struct ArgRecord {
    void* data;             // char** for type code 1, double* for type code 4
    double* xData;          // x values of a waveform, or null
    std::uint32_t count;    // elements in data (and xData); 0 when absent
    std::uint32_t kind;     // 0 for real data
    std::uint64_t hostWord; // carried along, never read by the module
    const char* units;
    const char* xUnits;
    std::uint64_t hostWords[2];
};

using MakeStringArrayFn = char** (*)(UserFunctionInterface*, int n);
using MakeRealVectorFn = double* (*)(UserFunctionInterface*, int n, const char* units);
using DupStringFn = char* (*)(const char*);
using CallScriptFunctionFn = bool (*)(UserFunctionInterface*, const char* name, ArgRecord* args,
                                      int nargs, ArgRecord* result, int* error);
using NotifyHostFn = void (*)(UserFunctionInterface*, int);

// The per-call record the host builds for each script call.
struct UserFunctionInterface {
    std::uint64_t hostWord; // the stand-in host keeps its call context here
    ArgRecord args[32];
    std::int32_t argCount;
    std::uint32_t unused;
    MakeStringArrayFn MakeStringArray;
    MakeRealVectorFn MakeRealVector;
    void* unusedFunction;
    MakeRealVectorFn MakeXVector;
    DupStringFn DupString;
    CallScriptFunctionFn CallScriptFunction;
    NotifyHostFn NotifyHost;
    std::uint64_t hostWords[9];
};

class QDialog;
using DirectHandler = long long (*)(UserFunctionInterface*);
using FactoryHandler = QDialog* (*)(UserFunctionInterface*, void*);

enum ArgTypeCode : std::uint32_t { ArgStrings = 1, ArgReals = 4 };

// ArgRecord::kind as the stand-in host fills it: 0 is real data (the only
// value the module tests), anything else a string array.
enum ArgRecordKind : std::uint32_t { ArgKindReal = 0, ArgKindStrings = 1 };

// The registration record of one script function.
struct FunctionDecl {
    char name[64];
    std::uint32_t argTypes[32];
    std::uint32_t argFlags[32];
    std::int16_t minArgs;
    std::int16_t maxArgs;
    std::uint32_t padding0;
    void* handler;
    std::uint64_t reserved0;
    std::uint32_t isDialogFactory;
    std::uint32_t reserved1;
    FunctionDecl* next;
    std::uint16_t reserved2;
    std::uint16_t padding1;
    std::uint32_t reserved3;
};

namespace udf {
constexpr std::uint32_t kInterfaceSize = 2192;
constexpr std::uint32_t kDeclSize = 368;
constexpr std::uint32_t kInterfaceVersion = 2;
constexpr int kMaxArgs = 32;
constexpr int kCallbackTableSize = 256;
} // namespace udf

static_assert(sizeof(ArgRecord) == 64, "ArgRecord layout");
static_assert(offsetof(ArgRecord, data) == 0 && offsetof(ArgRecord, xData) == 8, "ArgRecord layout");
static_assert(offsetof(ArgRecord, count) == 16 && offsetof(ArgRecord, kind) == 20, "ArgRecord layout");
static_assert(offsetof(ArgRecord, units) == 32 && offsetof(ArgRecord, xUnits) == 40, "ArgRecord layout");

static_assert(sizeof(UserFunctionInterface) == udf::kInterfaceSize, "UserFunctionInterface layout");
static_assert(offsetof(UserFunctionInterface, args) == 8, "UserFunctionInterface layout");
static_assert(offsetof(UserFunctionInterface, argCount) == 2056, "UserFunctionInterface layout");
static_assert(offsetof(UserFunctionInterface, MakeStringArray) == 2064, "UserFunctionInterface layout");
static_assert(offsetof(UserFunctionInterface, MakeRealVector) == 2072, "UserFunctionInterface layout");
static_assert(offsetof(UserFunctionInterface, unusedFunction) == 2080, "UserFunctionInterface layout");
static_assert(offsetof(UserFunctionInterface, MakeXVector) == 2088, "UserFunctionInterface layout");
static_assert(offsetof(UserFunctionInterface, DupString) == 2096, "UserFunctionInterface layout");
static_assert(offsetof(UserFunctionInterface, CallScriptFunction) == 2104, "UserFunctionInterface layout");
static_assert(offsetof(UserFunctionInterface, NotifyHost) == 2112, "UserFunctionInterface layout");
static_assert(offsetof(UserFunctionInterface, hostWords) == 2120, "UserFunctionInterface layout");

static_assert(sizeof(FunctionDecl) == udf::kDeclSize, "FunctionDecl layout");
static_assert(offsetof(FunctionDecl, argTypes) == 64, "FunctionDecl layout");
static_assert(offsetof(FunctionDecl, argFlags) == 192, "FunctionDecl layout");
static_assert(offsetof(FunctionDecl, minArgs) == 320, "FunctionDecl layout");
static_assert(offsetof(FunctionDecl, maxArgs) == 322, "FunctionDecl layout");
static_assert(offsetof(FunctionDecl, handler) == 328, "FunctionDecl layout");
static_assert(offsetof(FunctionDecl, reserved0) == 336, "FunctionDecl layout");
static_assert(offsetof(FunctionDecl, isDialogFactory) == 344, "FunctionDecl layout");
static_assert(offsetof(FunctionDecl, reserved1) == 348, "FunctionDecl layout");
static_assert(offsetof(FunctionDecl, next) == 352, "FunctionDecl layout");
static_assert(offsetof(FunctionDecl, reserved2) == 360, "FunctionDecl layout");
static_assert(offsetof(FunctionDecl, reserved3) == 364, "FunctionDecl layout");

// The two exported entry points of the module.
extern "C" {
using AssignCallbacksFn = void (*)(void* callbacks);
using GetFunctionDeclsFn = FunctionDecl* (*)(FunctionDecl** firstOut, std::uint8_t* flagOut,
                                            std::uint32_t* sizesOut);
}
