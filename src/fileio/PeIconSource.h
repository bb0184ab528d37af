#pragma once

#include "fileio/IconGroup.h"
#include "fileio/IconSource.h"

#include <QByteArray>
#include <map>
#include <memory>
#include <vector>

// The icons of a Windows executable, library or control (PE32 or PE32+, any
// machine): one per icon group resource (type 14), in the order the resource
// directory lists the groups, each shown by the group's best image (type 3
// resources, found by ID).
class PeIconSource : public IconSource {
  public:
    // True when the bytes carry the MZ and PE signatures.
    static bool recognises(const QByteArray& bytes);
    // The parsed file, or nullptr with fault set when its headers or resource
    // directory are cut short or malformed.
    static std::unique_ptr<PeIconSource> open(QByteArray bytes, ReadFault& fault);

    int count() const override;
    IconLoadResult image(int index) const override;
    std::optional<QByteArray> storedFile(int index) const override;
    QString name(int index) const override;

  private:
    struct Section {
        quint32 address, size, fileOffset;
    };
    struct Data {
        quint32 address = 0, size = 0;
    };

    explicit PeIconSource(QByteArray bytes) : bytes_(std::move(bytes)) {}
    ReadFault parse();
    ReadFault readResources(qint64 root);
    // The data entry of one name under a type directory: its first language.
    ReadFault firstLanguage(qint64 root, quint32 nameEntryValue, Data& data) const;
    // A resource's name: its ID in decimal, or the string it points to.
    QString nameOf(qint64 root, quint32 name) const;
    // The group's members with their images found, or nullopt.
    std::optional<std::vector<GroupMember>> members(int index, qint64& groupOffset) const;
    // File offset of [address, address + size) in the image, or -1.
    qint64 fileOffset(quint32 address, quint32 size) const;

    QByteArray bytes_;
    std::vector<Section> sections_;
    std::vector<Data> groups_;
    std::vector<QString> groupNames_;
    std::map<quint32, Data> icons_;
};
