#include "platform/FloodFill.h"

#include <utility>
#include <vector>

void floodFillSurface(Plane& plane, int x, int y, Colour colour) {
    if (!plane.contains(x, y))
        return;
    const Colour target = plane.pixel(x, y);
    if (target == colour)
        return;
    // Scanline fill: each popped seed fills its whole run, then seeds the rows
    // above and below; the stack is bounded by the plane's pixel count.
    std::vector<std::pair<int, int>> seeds{{x, y}};
    while (!seeds.empty()) {
        auto [sx, sy] = seeds.back();
        seeds.pop_back();
        Colour* row = plane.row(sy);
        if (row[sx] != target)
            continue;
        int left = sx, right = sx;
        while (left > 0 && row[left - 1] == target)
            --left;
        while (right + 1 < plane.width() && row[right + 1] == target)
            ++right;
        for (int i = left; i <= right; ++i)
            row[i] = colour;
        for (int ny : {sy - 1, sy + 1}) {
            if (ny < 0 || ny >= plane.height())
                continue;
            const Colour* next = plane.row(ny);
            for (int i = left; i <= right; ++i)
                if (next[i] == target && (i == left || next[i - 1] != target))
                    seeds.emplace_back(i, ny);
        }
    }
}
