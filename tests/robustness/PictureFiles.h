// Picture files, good and bad, as bytes.
#pragma once

#include "tests/robustness/Dice.h"

#include <string>
#include <vector>

/// The contents of a file, and what is wrong with them.
struct PictureFile
{
    std::string name;
    std::string bytes;
};

/// Files that load: GIF from the toolkit's images, bitmaps of several kinds.
std::vector<PictureFile> GoodPictures();

/// Files that were damaged by hand: cut, with senseless sizes, tables, codes and offsets.
std::vector<PictureFile> BadPictures();

/// Where the system is Wine: false for a bitmap file or icon whose head claims more than the file
/// holds, for a bitmap in runs and for a GIF file of no size. Wine's own loader reads on past the
/// end of these, and may crash.
bool IsSafeForSystem(const std::string& bytes);

/// A good file with some bytes changed, cut out, doubled or added. Sizes stay within what a machine
/// can hold: a picture of 65535 by 65535 pixels tries the system's memory, not the toolkit.
PictureFile Mutate(const std::vector<PictureFile>& good, Dice& dice);
