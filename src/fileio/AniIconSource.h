#pragma once

#include "fileio/IconSource.h"

#include <QByteArray>
#include <memory>
#include <vector>

// An animated cursor (RIFF "ACON") as the extraction browser sees it: one
// icon per animation step. The step count comes from the "anih" header; a
// "seq " chunk maps steps to the frames of the "LIST fram" chunk, and
// without one step k shows frame k. Counting stops at the first step whose
// frame the file does not hold, as drawing that step would fail.
class AniIconSource : public IconSource {
  public:
    static bool recognises(const QByteArray& bytes);
    // The parsed file, or nullptr with fault set when a chunk runs past the
    // file or the "anih" header is missing.
    static std::unique_ptr<AniIconSource> open(QByteArray bytes, ReadFault& fault);

    int count() const override;
    IconLoadResult image(int index) const override;
    // Each step's frame is an icon or cursor file of its own.
    std::optional<QByteArray> storedFile(int index) const override;
    QString name(int index) const override;

  private:
    struct Span {
        qint64 offset, length;
    };

    explicit AniIconSource(QByteArray bytes) : bytes_(std::move(bytes)) {}
    ReadFault parse();
    ReadFault readFrames(qint64 offset, qint64 end);
    // The frame step k shows, or -1 when there is none.
    qint64 frameOf(qint64 step) const;

    QByteArray bytes_;
    std::vector<Span> frames_;
    std::vector<quint32> sequence_;
    bool hasSequence_ = false;
    int count_ = 0;
};
