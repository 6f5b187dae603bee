// Registration objects: one static object per script function, in the source
// file that implements it. Its constructor fills a FunctionDecl and pushes it
// on the module's list, so adding a function touches no central table.
//
// Records go on the front of the list, so the host sees them in reverse
// order of registration. Registration order is the order of the object files
// in the module's link line (see CMakeLists.txt), and within one file the
// order of definition.
#pragma once

#include "udf.h"

#include <cstdint>
#include <initializer_list>

class FunctionRegistration {
public:
    // limits: minArgs in the low 16 bits, maxArgs in the high 16 bits
    // (0x20001 is 1 to 2). Without a type table every argument is code 1.
    FunctionRegistration(const char* name, std::uint32_t limits, DirectHandler handler,
                         std::initializer_list<std::uint32_t> argTypes = {},
                         std::initializer_list<std::uint32_t> argFlags = {});
    FunctionRegistration(const char* name, std::uint32_t limits, FactoryHandler factory);

    FunctionRegistration(const FunctionRegistration&) = delete;
    FunctionRegistration& operator=(const FunctionRegistration&) = delete;

    const FunctionDecl& decl() const { return m_decl; }

private:
    void fill(const char* name, std::uint32_t limits, void* handler, bool factory,
              std::initializer_list<std::uint32_t> argTypes,
              std::initializer_list<std::uint32_t> argFlags);

    FunctionDecl m_decl;
};

// Argument limits as the record stores them.
constexpr std::uint32_t argLimits(int minArgs, int maxArgs)
{
    return (static_cast<std::uint32_t>(maxArgs) << 16) | static_cast<std::uint32_t>(minArgs);
}
