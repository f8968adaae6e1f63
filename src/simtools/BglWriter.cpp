#include "simtools/BglWriter.h"

#include "core/Bytes.h"
#include "simtools/BglLayout.h"

#include <string_view>

namespace landsmith::simtools {

namespace {

void FillUpTo(ByteWriter& out, std::size_t size) {
  while (out.Size() < size)
    out.U8(0);
}

std::uint32_t Latitude(std::int32_t degrees) {
  return static_cast<std::uint32_t>(degrees * bgl::LatitudeUnits);
}

/// The circle has 2^32 parts, so whole turns fall out by themselves.
std::uint32_t Longitude(std::int32_t degrees) {
  const std::int64_t turn = std::int64_t{1} << 32;
  const std::int64_t positive = (degrees + std::int64_t{360} * 2) * turn;
  return static_cast<std::uint32_t>((positive + 180) / 360);
}

void WriteBlock(ByteWriter& out, std::uint32_t section, std::string_view block) {
  if (block.empty()) return;
  out.PatchU32(bgl::HeaderSize + section, static_cast<std::uint32_t>(out.Size()) - bgl::HeaderSize);
  out.Bytes(block);
}

}  // namespace

std::string BlockOf(std::uint32_t format, const std::string& first, const std::string& second) {
  ByteWriter out;
  out.U32(bgl::BlockSize);
  out.U32(format);
  out.U32(bgl::BlockSize);
  out.U32(static_cast<std::uint32_t>(bgl::BlockSize + first.size()));
  out.U32(0);
  return out.Take() + first + second;
}

std::string WriteBgl(const BglHeader& header, const BglBlocks& blocks) {
  ByteWriter out;
  out.U16(header.World);
  out.U32(Latitude(header.North));
  out.U32(Latitude(header.South));
  out.U32(Longitude(header.East));
  out.U32(Longitude(header.West));
  FillUpTo(out, bgl::MagicPlace);
  out.U32(bgl::Magic);
  FillUpTo(out, bgl::HeaderSize);
  if (blocks.Lwm.empty() && blocks.Vtp.empty()) return out.Take();
  out.PatchU32(bgl::SectionPointer, bgl::HeaderSize);
  out.U32(bgl::SectionTableSize);
  FillUpTo(out, bgl::HeaderSize + bgl::SectionTableSize);
  WriteBlock(out, bgl::LwmSection, blocks.Lwm);
  WriteBlock(out, bgl::VtpSection, blocks.Vtp);
  return out.Take();
}

}  // namespace landsmith::simtools
