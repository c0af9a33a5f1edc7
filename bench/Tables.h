// The tables that the benchmark prints.
#pragma once

// Each prints one table in Markdown; all numbers of a line come from one race.

/// The pixels of each style, by engine, against memcpy and against plain loops.
void PrintPixelTable();
/// The making of a button's six bitmaps against the plain making of them.
void PrintFacesTable();
/// The repaint of a button against that of a minimal owner-drawn one.
void PrintRepaintTable();
