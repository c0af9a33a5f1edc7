#include "bench/PageScenes.h"
#include "bench/Race.h"
#include "bench/Tables.h"

#include <cstdio>
#include <cstring>

void PrintPageTable()
{
    std::printf(
        "Microseconds for a repaint of a whole page; plain shows the system's own controls, "
        "half of them\nlabels and half of them buttons.\n\n"
        "| Controls | plain | CBaseDialog | ratio | buffered | ratio |\n"
        "|--:|--:|--:|--:|--:|--:|\n");
    for (const int controls : {0, 10, 50, 200}) {
        PageScene plain(SceneKind::plain, controls);
        PageScene toolkit(SceneKind::toolkit, controls);
        PageScene buffered(SceneKind::buffered, controls);
        const auto showOnly = [&](PageScene& scene) {
            for (PageScene* other : {&plain, &toolkit, &buffered})
                other->Show(false);
            scene.Show(true);
        };
        Race race;
        race.Add(
            "plain", [&] { plain.Repaint(); }, [&] { showOnly(plain); });
        race.Add(
            "toolkit", [&] { toolkit.Repaint(); }, [&] { showOnly(toolkit); });
        race.Add(
            "buffered", [&] { buffered.Repaint(); }, [&] { showOnly(buffered); });
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
    constexpr struct
    {
        const char* name;
        SceneKind kind;
    } kinds[] = {{"plain", SceneKind::plain},
                 {"toolkit", SceneKind::toolkit},
                 {"buffered", SceneKind::buffered}};
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
