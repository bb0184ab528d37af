#pragma once

#include <QByteArray>
#include <QtGlobal>

// Appends little-endian integers to a file being built in memory.
class ByteWriter {
  public:
    explicit ByteWriter(QByteArray& out) : out_(out) {}

    void u8(quint32 v) { out_.append(static_cast<char>(v & 0xFF)); }
    void u16(quint32 v) {
        u8(v);
        u8(v >> 8);
    }
    void u32(quint32 v) {
        u16(v);
        u16(v >> 16);
    }
    void i32(qint32 v) { u32(static_cast<quint32>(v)); }

  private:
    QByteArray& out_;
};
