#include "registration.h"
#include "registry.h"

#include <cstring>

FunctionRegistration::FunctionRegistration(const char* name, std::uint32_t limits,
                                           DirectHandler handler,
                                           std::initializer_list<std::uint32_t> argTypes,
                                           std::initializer_list<std::uint32_t> argFlags)
{
    fill(name, limits, reinterpret_cast<void*>(handler), false, argTypes, argFlags);
}

FunctionRegistration::FunctionRegistration(const char* name, std::uint32_t limits,
                                           FactoryHandler factory)
{
    fill(name, limits, reinterpret_cast<void*>(factory), true, {}, {});
}

void FunctionRegistration::fill(const char* name, std::uint32_t limits, void* handler,
                                bool factory, std::initializer_list<std::uint32_t> argTypes,
                                std::initializer_list<std::uint32_t> argFlags)
{
    // The host compares records byte for byte with what it expects, so every
    // reserved word must be zero, not just whatever static storage held.
    std::memset(&m_decl, 0, 360);
    m_decl.reserved2 = 0;
    m_decl.reserved3 = 0;

    std::strncpy(m_decl.name, name, sizeof m_decl.name - 1);
    m_decl.name[sizeof m_decl.name - 1] = '\0';

    m_decl.minArgs = static_cast<std::int16_t>(limits & 0xffff);
    m_decl.maxArgs = static_cast<std::int16_t>(limits >> 16);
    m_decl.isDialogFactory = factory ? 1 : 0;
    m_decl.handler = handler;

    std::memset(m_decl.argFlags, 0, sizeof m_decl.argFlags);
    const int typed = m_decl.maxArgs < udf::kMaxArgs ? m_decl.maxArgs : udf::kMaxArgs;
    for (int i = 0; i < typed; ++i) {
        const bool fromTable = argTypes.size() != 0;
        m_decl.argTypes[i] = !fromTable ? std::uint32_t(ArgStrings)
                             : i < int(argTypes.size()) ? argTypes.begin()[i]
                                                        : 0u;
    }
    const int flagged = typed < int(argFlags.size()) ? typed : int(argFlags.size());
    for (int i = 0; i < flagged; ++i)
        m_decl.argFlags[i] = argFlags.begin()[i];

    registry::push(&m_decl);
}
