#include "tests/robustness/ChildProgram.h"
#include "tests/robustness/GdiSweeper.h"
#include "tests/robustness/PictureFiles.h"
#include "tests/robustness/Stage.h"

#include "tests/Folders.h"

#include "controls/HyperLink.h"
#include "controls/ShadeButton.h"
#include "controls/StaticTS.h"
#include "shell/PictureLoader.h"

#include <doctest/doctest.h>

#include <fstream>
#include <functional>
#include <stdio.h>
#include <stdlib.h>

using namespace umbra::testing;

namespace {

const char childTest[] = "part: broken pictures";
const unsigned seed = 20240611;
const DWORD longestLoad = 5000; // Milliseconds, on a busy machine.
const int mostCrashes = 20;

/// How many damaged files are tried beside the bad ones.
int CountMutations()
{
    const char* wanted = getenv("UMBRA_MUTATIONS");
    return wanted != nullptr ? atoi(wanted) : 500;
}

/// What parent and child share.
struct Progress
{
    volatile LONG beat;
    LONG loader; ///< Under way.
    LONG file;   ///< Under way: bad files first, then mutations.
    LONG finished;
    LONG tried;
    LONG leftOut;
    LONG loaded;
    LONG slowest; ///< Milliseconds.
    LONG lost;
    char what[200];
    char firstLoss[200];
};

// The four ways into the loader. Each answers whether a picture came out, in the looks that take
// the longest way: keyed, so that a mask is built, and painted.

bool LoadAlone(const CString& path)
{
    const HBITMAP bitmap = LoadPictureBitmap(path);
    if (bitmap == nullptr)
        return false;
    BITMAP record = {};
    const bool isBitmap = ::GetObject(bitmap, sizeof(record), &record) != 0 && record.bmWidth > 0;
    ::DeleteObject(bitmap);
    return isBitmap;
}

/// A button that shows whether it has a picture.
class Button : public CxShadeButton
{
public:
    using CxShadeButton::m_hBitmap;
};

bool LoadIntoButton(const CString& path)
{
    Stage stage;
    Button button;
    button.SubclassWindow(stage.AddButton(BS_PUSHBUTTON));
    button.SetPicture(path, CxShadeButton::alignLeft, 19, 19, RGB(0, 0, 0));
    stage.Show();
    stage.Close();
    return button.m_hBitmap != nullptr;
}

/// Labels leave their pictures behind; these are deleted here.
bool LoadIntoLabel(const CString& path)
{
    Stage stage;
    CStaticTS label;
    label.SubclassWindow(stage.AddLabel());
    label.SetTransparentColor(RGB(0, 0, 0));
    label.LoadPicture(path);
    stage.Show();
    stage.Close();
    const bool loaded = label.m_bHasPicture;
    label.m_bHasPicture = FALSE;
    return loaded;
}

/// A link that shows whether it has a picture.
class Link : public CHyperLink
{
public:
    using CHyperLink::m_bBitmapLoaded;
};

bool LoadIntoLink(const CString& path)
{
    Stage stage;
    Link link;
    link.SubclassWindow(stage.AddLabel());
    link.SetTransparentColor(RGB(0, 0, 0));
    link.SetBitmapFile(path);
    stage.Show();
    stage.Close();
    const bool loaded = link.m_bBitmapLoaded;
    link.m_bBitmapLoaded = FALSE;
    return loaded;
}

/// One way into the loader.
struct Loader
{
    const char* name;
    bool (*load)(const CString& path);
};

const Loader loaders[] = {
    {"LoadPictureBitmap", LoadAlone},
    {"CxShadeButton::SetPicture", LoadIntoButton},
    {"CStaticTS::LoadPicture", LoadIntoLabel},
    {"CHyperLink::SetBitmapFile", LoadIntoLink},
};
const LONG loaderCount = sizeof(loaders) / sizeof(loaders[0]);

/// The file that every picture is written to.
CString TemporaryPicture()
{
    CString name;
    name.Format(_T("umbra-picture-%lu.bin"), ::GetCurrentProcessId());
    return TemporaryPath(name).c_str();
}

/// Writes that file and answers its path.
CString WritePicture(const PictureFile& file)
{
    const CString path = TemporaryPicture();
    std::ofstream(static_cast<LPCTSTR>(path), std::ios::binary) << file.bytes;
    return path;
}

/// One file through one loader, with the time that it took.
void TryFile(const Loader& loader, const PictureFile& file, Progress& progress)
{
    const CString path = WritePicture(file);
    snprintf(progress.what, sizeof(progress.what), "%s, file %ld (%s)", loader.name, progress.file,
             file.name.c_str());
    progress.beat = progress.beat + 1;
    const DWORD start = ::GetTickCount();
    ++progress.tried;
    if (loader.load(path))
        ++progress.loaded;
    progress.slowest = max(progress.slowest, static_cast<LONG>(::GetTickCount() - start));
}

/// All files through one loader, from where a crash has ended the former child.
void TryFiles(LONG loaderIndex, LONG first, Progress& progress)
{
    const Loader& loader = loaders[loaderIndex];
    const std::vector<PictureFile> good = GoodPictures();
    const std::vector<PictureFile> bad = BadPictures();
    Dice dice(seed + static_cast<unsigned>(loaderIndex));
    TryFile(loader, good.front(), progress);
    GdiSweeper sweeper;
    const LONG count = static_cast<LONG>(bad.size()) + CountMutations();
    for (LONG i = 0; i < count; ++i) {
        const bool isBad = i < static_cast<LONG>(bad.size());
        const PictureFile file = isBad ? bad[static_cast<size_t>(i)] : Mutate(good, dice);
        if (i < first)
            continue;
        if (!IsSafeForSystem(file.bytes)) {
            ++progress.leftOut;
            continue;
        }
        progress.file = i;
        TryFile(loader, file, progress);
        GdiSweeper::Left left = sweeper.Sweep();
        // What the system caches does not come again for ever; a loss does.
        for (int cached = left.others; left.others > 0 && cached <= GdiSweeper::systemCache;
             cached += left.others) {
            loader.load(WritePicture(file));
            left.others = sweeper.Sweep().others;
        }
        const LONG lost = left.bitmaps + left.fonts + left.others;
        if (lost != 0 && progress.lost == 0)
            memcpy(progress.firstLoss, progress.what, sizeof(progress.what));
        progress.lost += lost;
    }
    ::DeleteFile(TemporaryPicture());
}

} // namespace

TEST_CASE("part: broken pictures" * doctest::skip())
{
    const SharedMemory memory(ChildArgument(), sizeof(Progress));
    auto& progress = *static_cast<Progress*>(memory.Get());
    LONG first = progress.file + 1;
    for (LONG loader = progress.loader; loader < loaderCount; ++loader) {
        progress.loader = loader;
        TryFiles(loader, first, progress);
        first = 0;
    }
    progress.finished = TRUE;
}

TEST_CASE("the good pictures load through every loader")
{
    for (const PictureFile& file : GoodPictures()) {
        INFO(file.name);
        const CString path = WritePicture(file);
        for (const Loader& loader : loaders)
            CHECK_MESSAGE(loader.load(path), loader.name);
    }
    ::DeleteFile(TemporaryPicture());
}

TEST_CASE("broken pictures give a bitmap or none, and nothing crashes, hangs or is lost")
{
    const std::string name = "umbra-pictures-" + std::to_string(::GetCurrentProcessId());
    const SharedMemory memory(name, sizeof(Progress));
    auto& progress = *static_cast<Progress*>(memory.Get());
    progress.file = -1;
    int crashes = 0;
    while (!progress.finished && crashes < mostCrashes) {
        const ChildEnd end = RunChild(childTest, name, [&] { return progress.beat; });
        if (progress.finished && end.IsGood())
            break;
        ++crashes;
        FAIL_CHECK(std::string(progress.what) << ": " << end.Describe());
    }
    printf("%ld files tried (mutations with seed %u), %ld loaded, %ld lost, the slowest in %ld ms; "
           "%ld left out that may crash the system's own loader\n",
           progress.tried, seed, progress.loaded, progress.lost, progress.slowest,
           progress.leftOut);
    CHECK(progress.finished);
    CHECK(progress.loaded > progress.tried / 10); // Or the damage is too crude to get anywhere.
    CHECK(progress.loaded < progress.tried);
    INFO("first lost by ", std::string(progress.firstLoss));
    CHECK(progress.lost == 0);
    CHECK(progress.slowest < static_cast<LONG>(longestLoad));
}
