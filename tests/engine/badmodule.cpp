// A module that a host must refuse: built against other record sizes, or
// (without VT_BAD_SIZES) lacking the entry points altogether.
#include "udf.h"

#ifdef VT_BAD_SIZES
extern "C" __attribute__((visibility("default"))) void udf_AssignCallbacks(void*) {}

extern "C" __attribute__((visibility("default"))) FunctionDecl*
udf_GetFunctionDecls(FunctionDecl** firstOut, std::uint8_t* flagOut, std::uint32_t* sizesOut)
{
    *flagOut = 0;
    sizesOut[0] = 2184;
    sizesOut[1] = 368;
    sizesOut[2] = 1;
    *firstOut = nullptr;
    return nullptr;
}
#else
extern "C" __attribute__((visibility("default"))) int notADialogModule()
{
    return 0;
}
#endif
