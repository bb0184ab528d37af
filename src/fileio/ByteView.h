#pragma once

#include <QByteArray>
#include <QtGlobal>

// Little-endian reads from bytes that came from a file. Callers ask
// contains() before every read, so no offset from the file is trusted.
class ByteView {
  public:
    explicit ByteView(const QByteArray& bytes) : bytes_(bytes) {}

    qint64 size() const { return bytes_.size(); }
    // True when [offset, offset + length) lies inside the bytes; safe for any
    // offset or length a file can hold.
    bool contains(qint64 offset, qint64 length) const {
        return offset >= 0 && length >= 0 && offset <= size() && length <= size() - offset;
    }

    quint8 u8(qint64 offset) const { return static_cast<quint8>(bytes_[offset]); }
    quint16 u16(qint64 offset) const {
        return static_cast<quint16>(u8(offset) | u8(offset + 1) << 8);
    }
    qint16 i16(qint64 offset) const { return static_cast<qint16>(u16(offset)); }
    quint32 u32(qint64 offset) const {
        return static_cast<quint32>(u16(offset)) | static_cast<quint32>(u16(offset + 2)) << 16;
    }
    qint32 i32(qint64 offset) const { return static_cast<qint32>(u32(offset)); }
    // A copy of [offset, offset + length), which the caller has checked.
    QByteArray mid(qint64 offset, qint64 length) const { return bytes_.mid(offset, length); }

  private:
    const QByteArray& bytes_;
};
