// Pastes a clipboard picture of fuzzed size and pixels into a new icon, the
// way Edit > Paste and Paste Opaque take whatever another program put there,
// and checks the floating selection pixel by pixel, then the committed icon.
// Input: flags (size index, opaque), the paste dialog's answer, width and
// height (16-bit little-endian), then RGB pixels, repeated to fill.
#include "platform/MemoryClipboard.h"
#include "session/CancellingDialogs.h"
#include "session/Editor.h"

#include <cstdint>
#include <cstdlib>

namespace {

void check(bool promise) {
    if (!promise)
        std::abort();
}

// A picture bigger than this is cut down (screenshots run to millions of
// pixels; the code paths are the same and the fuzzer stays fast).
constexpr int kMaxSide = 4096;
constexpr int kMaxPixels = 1 << 17;

// Answers "Paste Options" with the fuzzed choice and cancels everything else.
class PasteAnswer : public CancellingDialogs {
  public:
    explicit PasteAnswer(int answer) : answer_(answer) {}
    int choosePasteOption() override {
        ++asked;
        return answer_;
    }
    int asked = 0;

  private:
    int answer_;
};

Plane pictureFrom(const std::uint8_t* data, std::size_t size, int width, int height) {
    Plane picture(width, height, kWhite);
    const std::size_t colours = size / 3;
    if (colours == 0)
        return picture;
    std::size_t next = 0;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x, next = (next + 1) % colours) {
            const std::uint8_t* p = data + 3 * next;
            picture.setPixel(x, y, rgb(p[0], p[1], p[2]));
        }
    }
    return picture;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 6)
        return 0;
    const int sizeIndex = data[0] % 3;
    const bool opaque = (data[0] & 4) != 0;
    const int answer = static_cast<std::int8_t>(data[1]);
    const int width = (data[2] | data[3] << 8) % (kMaxSide + 1);
    int height = (data[4] | data[5] << 8) % (kMaxSide + 1);
    if (width > 0 && width * height > kMaxPixels)
        height = kMaxPixels / width;

    MemoryClipboard clipboard;
    clipboard.picture = pictureFrom(data + 6, size - 6, width, height);
    PasteAnswer dialogs(answer);
    Editor editor(dialogs, clipboard);
    editor.newIcon(sizeIndex);
    const Plane image = editor.doc().PicImage, mask = editor.doc().PicMask;
    const int iconSide = image.width();
    const Plane& clip = clipboard.picture;

    editor.editAction(opaque ? EditAction::PasteOpaque : EditAction::Paste);

    // Only a picture larger than the icon asks how to shrink it.
    const bool tooBig = width > iconSide || height > iconSide;
    check(dialogs.asked == (!clip.isEmpty() && tooBig ? 1 : 0));
    const Selection& sel = editor.selection();
    // A cancelled choice changes nothing; an empty picture floats as an empty
    // selection, which changes no pixel.
    if (clip.isEmpty() || (tooBig && answer != 0 && answer != 1)) {
        check(clip.isEmpty() ? sel.SelFloating && sel.SelRect.Right == 0 && editor.doc().modified
                             : !sel.exists() && !editor.doc().modified);
        check(editor.doc().PicImage == image && editor.doc().PicMask == mask);
        return 0;
    }

    // The floating selection: within the icon, at its top-left corner.
    const Plane selImage = editor.doc().PicSelImage, selMask = editor.doc().PicSelMask;
    const int w = selMask.width(), h = selMask.height();
    check(sel.SelFloating && editor.doc().modified);
    check(selImage.width() == w && selImage.height() == h);
    check(w >= 1 && h >= 1 && w <= iconSide && h <= iconSide);
    check(tooBig || (w == width && h == height));
    check(!tooBig || answer != 0 || (w == iconSide && h == iconSide));
    const int zoom = editor.doc().zoom;
    check(sel.SelRect.Left == 0 && sel.SelRect.Top == 0 && sel.SelRect.Right == zoom * w &&
          sel.SelRect.Bottom == zoom * h);
    // Each selection pixel is the picture's nearest pixel; plain Paste makes
    // pure white transparent.
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            const Colour source = clip.pixel(x * width / w, y * height / h);
            const bool clear = !opaque && source == kWhite;
            check(selMask.pixel(x, y) == (clear ? kWhite : kBlack));
            check(selImage.pixel(x, y) == (clear ? kBlack : source));
        }
    }

    // Committed, the opaque pixels cover the icon and the rest shows through.
    editor.editAction(EditAction::Deselect);
    check(!sel.exists());
    for (int y = 0; y < iconSide; ++y) {
        for (int x = 0; x < iconSide; ++x) {
            const bool covered = x < w && y < h && selMask.pixel(x, y) == kBlack;
            check(editor.doc().PicImage.pixel(x, y) ==
                  (covered ? selImage.pixel(x, y) : image.pixel(x, y)));
            check(editor.doc().PicMask.pixel(x, y) == (covered ? kBlack : mask.pixel(x, y)));
        }
    }
    return 0;
}
