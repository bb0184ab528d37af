#pragma once

#include "fileio/IconSource.h"

#include <QByteArray>
#include <map>
#include <memory>
#include <vector>

// The icons of a 16-bit Windows executable or library, icon libraries
// (.icl) included: one per icon group resource (type 0x800E) in the order of
// the resource table, each shown by the group's best image (type 0x8003,
// found by ID). Offsets and lengths in the table are in units of
// 2^alignment-shift bytes.
class NeIconSource : public IconSource {
  public:
    static bool recognises(const QByteArray& bytes);
    // The parsed file, or nullptr with fault set when its resource table is
    // cut short or malformed.
    static std::unique_ptr<NeIconSource> open(QByteArray bytes, ReadFault& fault);

    int count() const override;
    IconLoadResult image(int index) const override;
    std::optional<QByteArray> storedFile(int index) const override;
    QString name(int index) const override;

  private:
    struct Span {
        qint64 offset, length;
    };

    explicit NeIconSource(QByteArray bytes) : bytes_(std::move(bytes)) {}
    ReadFault parse();

    QByteArray bytes_;
    std::vector<Span> groups_;
    std::vector<QString> groupNames_;
    std::map<quint32, Span> icons_;
};
