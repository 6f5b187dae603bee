// The module's list of script functions and the two exported entry points.
#pragma once

#include "udf.h"

#define VT_MODULE_EXPORT __attribute__((visibility("default")))

namespace registry {
// Makes decl the new head of the list.
void push(FunctionDecl* decl);
FunctionDecl* head();
} // namespace registry

extern "C" {
VT_MODULE_EXPORT void udf_AssignCallbacks(void* callbacks);
VT_MODULE_EXPORT FunctionDecl* udf_GetFunctionDecls(FunctionDecl** firstOut, std::uint8_t* flagOut,
                                                    std::uint32_t* sizesOut);
}
