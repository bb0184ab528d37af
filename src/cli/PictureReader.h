#pragma once

#include "platform/PngDecoder.h"

#include <QByteArray>
#include <QString>
#include <optional>

// Pictures that are not icons (PNG, BMP and whatever else Qt's image readers
// know), read into the document's two planes: pixels under half opacity
// become transparent (mask white, colour black), the rest opaque in their
// colour. Qt's readers live in QtGui, whose loading alone takes longer than
// listing hundreds of icons, so they sit in a module of their own that is
// loaded only when a picture or a PNG image inside an icon must be decoded.
class PictureReader {
  public:
    struct Planes {
        Plane mask;
        Plane image;
    };

    // nullopt when the bytes are no picture Qt knows; error says why when
    // the module itself could not be loaded.
    static std::optional<Planes> read(const QByteArray& bytes, QString& error);

    // The editor's PNG decoder, from the module when first asked to decode.
    class LazyPngDecoder : public PngDecoder {
      public:
        std::optional<Plane> decode(const QByteArray& png, int largestSide) const override;
    };
};
