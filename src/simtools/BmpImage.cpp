#include "simtools/BmpImage.h"

#include "core/Bytes.h"

#include <algorithm>
#include <array>
#include <bit>

namespace landsmith::simtools {

namespace {

constexpr std::uint32_t FileHeaderSize = 14;
constexpr std::uint32_t InfoHeaderSize = 40;
constexpr std::int32_t LargestSide = 32767;

enum Compression : std::uint32_t { Plain = 0, Masks = 3 };

struct BmpHeader {
  std::uint32_t DataOffset = 0;
  std::uint32_t InfoSize = 0;
  std::int32_t Width = 0, Height = 0;
  bool FromAbove = false;
  std::uint32_t Bits = 0;
  std::uint32_t Compression = Plain;
  std::uint32_t ColorsUsed = 0;
};

struct ColorMasks {
  std::uint32_t R = 0, G = 0, B = 0;
};

BmpHeader ReadHeader(ByteReader& in) {
  if (in.U16() != 0x4D42) in.Fail("it does not begin with BM, so it is no bitmap");
  in.Seek(10);
  BmpHeader header;
  header.DataOffset = in.U32();
  header.InfoSize = in.U32();
  if (header.InfoSize < InfoHeaderSize)
    in.Fail("an info header of " + std::to_string(header.InfoSize) + " bytes, 40 or more are known");
  header.Width = in.I32();
  const std::int32_t height = in.I32();
  in.U16();  // planes
  header.Bits = in.U16();
  header.Compression = in.U32();
  in.Seek(FileHeaderSize + 32);
  header.ColorsUsed = in.U32();
  header.FromAbove = height < 0;
  if (header.Width < 1 || header.Width > LargestSide || height == 0 || height < -LargestSide ||
      height > LargestSide)
    in.Fail("a size of " + std::to_string(header.Width) + " by " + std::to_string(height) + " pixels");
  header.Height = header.FromAbove ? -height : height;
  return header;
}

void CheckKind(const ByteReader& in, const BmpHeader& header) {
  constexpr std::array<std::uint32_t, 6> Known{1, 4, 8, 16, 24, 32};
  if (std::find(Known.begin(), Known.end(), header.Bits) == Known.end())
    in.Fail(std::to_string(header.Bits) + " bits a pixel, known are 1, 4, 8, 16, 24 and 32");
  const bool masked = header.Compression == Masks && (header.Bits == 16 || header.Bits == 32);
  if (header.Compression != Plain && !masked)
    in.Fail("compressed pixels (kind " + std::to_string(header.Compression) + "), which are not read here");
}

std::vector<BmpPixel> ReadPalette(ByteReader& in, const BmpHeader& header) {
  if (header.Bits > 8) return {};
  const std::uint32_t most = 1U << header.Bits;
  const std::uint32_t count = header.ColorsUsed == 0 ? most : std::min(header.ColorsUsed, most);
  in.Seek(std::size_t{FileHeaderSize} + header.InfoSize);
  std::vector<BmpPixel> palette(most);
  for (std::uint32_t i = 0; i < count; ++i) {
    palette[i].B = in.U8();
    palette[i].G = in.U8();
    palette[i].R = in.U8();
    in.U8();
  }
  return palette;
}

ColorMasks ReadMasks(ByteReader& in, const BmpHeader& header) {
  if (header.Compression != Masks)
    return header.Bits == 16 ? ColorMasks{0x7C00, 0x03E0, 0x001F} : ColorMasks{0xFF0000, 0xFF00, 0xFF};
  // Behind 40 bytes they stand whatever the header's own size is.
  in.Seek(FileHeaderSize + InfoHeaderSize);
  ColorMasks masks;
  masks.R = in.U32();
  masks.G = in.U32();
  masks.B = in.U32();
  return masks;
}

/// The part of `value` under `mask`, stretched to 0..255.
std::uint8_t Component(std::uint32_t value, std::uint32_t mask) {
  if (mask == 0) return 0;
  const int shift = std::countr_zero(mask);
  const std::uint64_t most = mask >> shift;
  const std::uint64_t part = (value & mask) >> shift;
  return static_cast<std::uint8_t>((part * 255 + most / 2) / most);
}

std::uint32_t ByteAt(std::string_view row, std::size_t place) {
  return static_cast<unsigned char>(row[place]);
}

BmpPixel PixelAt(std::string_view row, std::size_t column, std::uint32_t bits,
                 const std::vector<BmpPixel>& palette, const ColorMasks& masks) {
  if (bits <= 8) {
    const std::size_t perByte = 8 / bits;
    const auto shift = static_cast<std::uint32_t>(8 - bits * (column % perByte + 1));
    return palette[(ByteAt(row, column / perByte) >> shift) & ((1U << bits) - 1)];
  }
  const std::size_t size = bits / 8;
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < size; ++i)
    value |= ByteAt(row, column * size + i) << (8 * i);
  return {Component(value, masks.R), Component(value, masks.G), Component(value, masks.B)};
}

}  // namespace

BmpImage ReadBmp(std::string_view bytes, const std::string& file) {
  ByteReader in(bytes, "reading the bitmap", file);
  const BmpHeader header = ReadHeader(in);
  CheckKind(in, header);
  const std::vector<BmpPixel> palette = ReadPalette(in, header);
  const ColorMasks masks = ReadMasks(in, header);

  const auto width = static_cast<std::size_t>(header.Width);
  const auto height = static_cast<std::size_t>(header.Height);
  const std::size_t stride = (width * header.Bits + 31) / 32 * 4;
  in.Seek(header.DataOffset);
  in.CheckedCount(header.Height, stride, "rows");
  BmpImage image{header.Width, header.Height, std::vector<BmpPixel>(width * height)};
  for (std::size_t i = 0; i < height; ++i) {
    const std::string_view row = in.Bytes(stride);
    BmpPixel* out = &image.Pixels[(header.FromAbove ? i : height - 1 - i) * width];
    for (std::size_t column = 0; column < width; ++column)
      out[column] = PixelAt(row, column, header.Bits, palette, masks);
  }
  return image;
}

std::string WriteBmp24(const BmpImage& image) {
  const auto width = static_cast<std::size_t>(image.Width);
  const auto height = static_cast<std::size_t>(image.Height);
  const std::size_t stride = (width * 3 + 3) / 4 * 4;
  const auto dataSize = static_cast<std::uint32_t>(stride * height);
  ByteWriter out;
  out.Reserve(FileHeaderSize + InfoHeaderSize + dataSize);
  out.Bytes("BM");
  out.U32(FileHeaderSize + InfoHeaderSize + dataSize);
  out.U32(0);
  out.U32(FileHeaderSize + InfoHeaderSize);
  out.U32(InfoHeaderSize);
  out.I32(image.Width);
  out.I32(image.Height);
  out.U16(1);
  out.U16(24);
  out.U32(Plain);
  out.U32(dataSize);
  for (int i = 0; i < 4; ++i)
    out.U32(0);  // resolution and palette: not told
  for (std::size_t row = height; row-- > 0;) {
    for (std::size_t column = 0; column < width; ++column) {
      const BmpPixel& pixel = image.Pixels[row * width + column];
      out.U8(pixel.B);
      out.U8(pixel.G);
      out.U8(pixel.R);
    }
    for (std::size_t fill = width * 3; fill < stride; ++fill)
      out.U8(0);
  }
  return out.Take();
}

}  // namespace landsmith::simtools
