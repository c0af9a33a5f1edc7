// The tables that the benchmark prints.
#pragma once

// Each prints one table in Markdown; all numbers of a line come from one race.

/// The pixels of each style, by engine, against memcpy and against plain loops.
void PrintPixelTable();
/// The making of a button's six bitmaps against the plain making of them.
void PrintFacesTable();
/// The repaint of a button against that of a minimal owner-drawn one.
void PrintRepaintTable();
/// The repaint of pages with few and many controls against that of plain ones.
void PrintPageTable();
/// Repaints a page, for those who count what is asked of the system from outside: "plain",
/// "toolkit" or "buffered", the controls, the times. False when there is no such page.
bool RepaintScene(const char* kind, int controls, int times);
/// The start of a program with a page of the toolkit against that of a plain one.
void PrintStartTable();
