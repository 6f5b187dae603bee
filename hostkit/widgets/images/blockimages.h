// The LoopForge block pictures, for the image generator.
#pragma once

#include <QPainter>

#include <vector>

struct BlockPicture {
    const char* file;
    int size;
    void (*draw)(QPainter&, int);
};

const std::vector<BlockPicture>& loopForgeBlockPictures();
