#include "hostwidgets.h"

#include "udf.h"

VT_FunctionDef::~VT_FunctionDef() = default;

int VT_FunctionDef::bindingVersion() const
{
    return 1;
}

bool VT_FunctionDef::isBindable() const
{
    return true;
}

int VT_FunctionDef::bindingPriority() const
{
    return 10;
}

bool VT_FunctionDef::isReadOnlyBinding() const
{
    return false;
}

bool VT_FunctionDef::initialiseWidget(UserFunctionInterface*)
{
    return false;
}

bool VT_FunctionDef::collectsItself() const
{
    return false;
}
