#include "fileio/IconBrowser.h"

#include "fileio/IconSourceOpener.h"
#include "platform/Raster.h"
#include "platform/Shapes.h"

#include <QFileInfo>

namespace {

constexpr std::size_t kMostDecoded = 4000;

} // namespace

bool IconBrowser::open(const QString& path) {
    IconSourceOpener::Opened opened = IconSourceOpener::openFile(path);
    if (!opened.source || opened.source->count() < 1)
        return false;
    source_ = std::move(opened.source);
    decoded_.clear();
    IconFile = path;
    IconFileName = QFileInfo(path).fileName();
    IconCount = source_->count();
    SelectedIcon = 0;
    return true;
}

QString IconBrowser::title() const {
    return QStringLiteral("Sollent - %1 - %2 Icons").arg(IconFileName).arg(IconCount);
}

QString IconBrowser::info() const {
    return QStringLiteral("Icon No %1 Selected.").arg(SelectedIcon + 1);
}

int IconBrowser::pictureHeight() const {
    const int rows = (IconCount + kColumns - 1) / kColumns;
    return rows <= kVisibleRows ? kViewHeight : rows * kPitch;
}

const IconLoadResult& IconBrowser::icon(int index) const {
    if (decoded_.size() >= kMostDecoded)
        decoded_.clear();
    auto found = decoded_.find(index);
    if (found == decoded_.end())
        found = decoded_.emplace(index, source_->image(index)).first;
    return found->second;
}

Plane IconBrowser::band(int top, int height) const {
    Plane out(kWidth, height, kBackground);
    if (!source_)
        return out;
    const int firstRow = std::max(top, 0) / kPitch;
    const int lastRow = (top + height - 1) / kPitch;
    for (int row = firstRow; row <= lastRow; ++row)
        for (int column = 0; column < kColumns; ++column) {
            const int index = row * kColumns + column;
            if (index >= IconCount)
                break;
            // An icon that will not decode leaves its cell empty, as a
            // failed drawing would.
            const IconLoadResult& shown = icon(index);
            if (shown.ok())
                drawMasked(out, kIconInset + kPitch * column, kIconInset + kPitch * row - top,
                           shown.mask, shown.image);
        }
    const int x = kPitch * (SelectedIcon % kColumns) + 1;
    const int y = kPitch * (SelectedIcon / kColumns) + 1 - top;
    drawBox(out, x, y, x + 36, y + 36, Pen{kBlack});
    return out;
}

bool IconBrowser::select(int x, int y) {
    if (x < 0 || y < 0 || x >= kWidth || y >= pictureHeight())
        return false;
    const int index = (y / kPitch) * kColumns + x / kPitch;
    if (index >= IconCount)
        return false;
    SelectedIcon = index;
    return true;
}
