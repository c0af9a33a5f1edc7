#include "bench/PageScenes.h"
#include "bench/Race.h"
#include "bench/Tables.h"

#include <cstdio>
#include <cstring>
#include <memory>
#include <vector>

namespace {

constexpr struct
{
    const char* name;
    SceneKind kind;
} kinds[] = {{"plain", SceneKind::plain},
             {"toolkit", SceneKind::toolkit},
             {"buffered", SceneKind::buffered}};

} // namespace

void PrintPageTable()
{
    std::printf(
        "Microseconds for a repaint of a whole page; plain shows the system's own controls, "
        "half of them\nlabels and half of them buttons.\n\n"
        "| Controls | plain | CBaseDialog | ratio | buffered | ratio |\n"
        "|--:|--:|--:|--:|--:|--:|\n");
    for (const int controls : {0, 10, 50, 200}) {
        std::vector<std::unique_ptr<PageScene>> scenes;
        Race race;
        for (const auto& known : kinds) {
            scenes.push_back(std::make_unique<PageScene>(known.kind, controls));
            PageScene* scene = scenes.back().get();
            const auto showAlone = [&scenes, scene] {
                for (const auto& other : scenes)
                    other->Show(false);
                scene->Show(true);
            };
            race.Add(
                known.name, [scene] { scene->Repaint(); }, showAlone);
        }
        race.Run(41);
        const double plainTime = race.NanosecondsOf("plain");
        const double toolkitTime = race.NanosecondsOf("toolkit");
        const double bufferedTime = race.NanosecondsOf("buffered");
        std::printf("| %d | %.0f | %.0f | %.2f | %.0f | %.2f |%s\n", controls + 3, plainTime / 1000,
                    toolkitTime / 1000, toolkitTime / plainTime, bufferedTime / 1000,
                    bufferedTime / plainTime, race.IsSteady() ? "" : " disturbed |");
    }
}

bool RepaintScene(const char* kind, int controls, int times)
{
    for (const auto& known : kinds) {
        if (std::strcmp(known.name, kind) != 0)
            continue;
        PageScene scene(known.kind, controls);
        scene.Show(true);
        for (int i = 0; i < times; ++i)
            scene.Repaint();
        return true;
    }
    return false;
}
