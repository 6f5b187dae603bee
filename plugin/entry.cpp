#include "registry.h"

#include <cstring>

namespace {
// Kept only so that the entry point has the effect the host expects; every
// service the module uses reaches it through the call record instead.
void* CallbackTable[udf::kCallbackTableSize / sizeof(void*)];

// Constant-initialised, so it is valid before any registration object runs.
FunctionDecl* FunctionDeclList = nullptr;
} // namespace

void registry::push(FunctionDecl* decl)
{
    decl->next = FunctionDeclList;
    FunctionDeclList = decl;
}

FunctionDecl* registry::head()
{
    return FunctionDeclList;
}

extern "C" void udf_AssignCallbacks(void* callbacks)
{
    if (!callbacks)
        return;
    std::memcpy(CallbackTable, callbacks, sizeof CallbackTable);
}

extern "C" FunctionDecl* udf_GetFunctionDecls(FunctionDecl** firstOut, std::uint8_t* flagOut,
                                              std::uint32_t* sizesOut)
{
    if (flagOut)
        *flagOut = 0;
    if (sizesOut) {
        sizesOut[1] = udf::kDeclSize;
        sizesOut[0] = udf::kInterfaceSize;
        sizesOut[2] = udf::kInterfaceVersion;
    }
    if (firstOut)
        *firstOut = FunctionDeclList;
    return FunctionDeclList;
}
