// Pictures of diode and zener configurations and the tool tip pictures of
// the model extraction dialog, for the image generator.
#pragma once

#include "blockimages.h"

#include <vector>

const std::vector<BlockPicture>& deviceConfigurationPictures();
