#pragma once

#include "fileio/IconGroup.h"
#include "fileio/IconSource.h"

#include <QByteArray>

// An .ico or .cur file as the extraction browser sees it: one icon, shown
// by the image of its directory that suits 32 x 32 best. (Open reads the
// same files image by image through IcoFile.)
class IcoIconSource : public IconSource {
  public:
    explicit IcoIconSource(QByteArray bytes);

    // True when the bytes open with an icon or cursor directory.
    static bool recognises(const QByteArray& bytes);

    int count() const override;
    IconLoadResult image(int index) const override;
    std::optional<QByteArray> storedFile(int index) const override;

  private:
    QByteArray bytes_;
    std::vector<GroupMember> members_;
};
