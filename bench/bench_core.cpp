// How fast a project of a million points is read and written, beside copying as many bytes through memory
// and through the disk. Bytes per second stand in one column, so that the ratio can be read off one run.
#include "core/ProjectFile.h"
#include "platform/Paths.h"

#include <benchmark/benchmark.h>

#include <cstring>
#include <filesystem>
#include <memory>

namespace landsmith {
namespace {

constexpr std::int64_t Points = 1000000;

/// A million points in lines of `pointsPerLine`.
ProjectState LargeProject(std::int64_t pointsPerLine) {
  ProjectState project;
  project.Name = "Large";
  double lon = -9;
  for (std::int64_t number = 0; number < Points / pointsPerLine; ++number) {
    LineRec& line = project.Lines.emplace_back();
    line.Name = "Road";
    line.Type = "VTP//4//road1//";
    for (std::int64_t i = 0; i < pointsPerLine; ++i)
      line.Points.push_back({lon += 0.00001, 40 + 0.5 * lon, 12, false});
    SetPathBounds(line);
  }
  return project;
}

class TempFile {
public:
  explicit TempFile(const char* name) : m_path(std::filesystem::temp_directory_path() / name) {}
  ~TempFile() {
    std::error_code ignored;
    std::filesystem::remove(m_path, ignored);
  }
  TempFile(const TempFile&) = delete;
  TempFile& operator=(const TempFile&) = delete;
  const std::filesystem::path& Path() const { return m_path; }

private:
  std::filesystem::path m_path;
};

void CountBytes(benchmark::State& state, std::size_t size) {
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(size));
}

/// Into memory that is asked for each time, as a load or save must.
void CopyMemory(benchmark::State& state) {
  const std::string bytes = WriteProject(LargeProject(state.range(0)), "");
  for (auto _ : state) {
    const std::unique_ptr<char[]> copy(new char[bytes.size()]);
    std::memcpy(copy.get(), bytes.data(), bytes.size());
    benchmark::DoNotOptimize(copy.get());
  }
  CountBytes(state, bytes.size());
}

/// Into memory that is there and warm: the strictest measure.
void CopyWarmMemory(benchmark::State& state) {
  const std::string bytes = WriteProject(LargeProject(state.range(0)), "");
  std::string copy = bytes;
  for (auto _ : state) {
    std::memcpy(copy.data(), bytes.data(), bytes.size());
    benchmark::ClobberMemory();
  }
  CountBytes(state, bytes.size());
}

void CopyFile(benchmark::State& state) {
  const TempFile from("landsmith_bench_from");
  const TempFile to("landsmith_bench_to");
  const std::string bytes = WriteProject(LargeProject(state.range(0)), "");
  WriteWholeFile(from.Path(), bytes);
  for (auto _ : state)
    WriteWholeFile(to.Path(), ReadWholeFile(from.Path()));
  CountBytes(state, bytes.size());
}

void Read(benchmark::State& state) {
  const std::string bytes = WriteProject(LargeProject(state.range(0)), "");
  for (auto _ : state)
    benchmark::DoNotOptimize(ReadProject(bytes, "bench"));
  CountBytes(state, bytes.size());
}

void Write(benchmark::State& state) {
  const ProjectState project = LargeProject(state.range(0));
  std::size_t size = 0;
  for (auto _ : state)
    size = WriteProject(project, "").size();
  CountBytes(state, size);
}

void LoadFile(benchmark::State& state) {
  const TempFile file("landsmith_bench_load");
  const std::string bytes = WriteProject(LargeProject(state.range(0)), "");
  WriteWholeFile(file.Path(), bytes);
  for (auto _ : state)
    benchmark::DoNotOptimize(ReadProject(ReadWholeFile(file.Path()), "bench"));
  CountBytes(state, bytes.size());
}

void SaveFile(benchmark::State& state) {
  const TempFile file("landsmith_bench_save");
  const ProjectState project = LargeProject(state.range(0));
  std::size_t size = 0;
  for (auto _ : state) {
    const std::string bytes = WriteProject(project, "");
    size = bytes.size();
    WriteWholeFile(file.Path(), bytes);
  }
  CountBytes(state, size);
}

// 100,000 lines of 10 points, and one line of a million.
#define MILLION_POINTS(name) BENCHMARK(name)->Arg(10)->Arg(Points)->Unit(benchmark::kMillisecond)
MILLION_POINTS(CopyWarmMemory);
MILLION_POINTS(CopyMemory);
MILLION_POINTS(Read);
MILLION_POINTS(Write);
MILLION_POINTS(CopyFile);
MILLION_POINTS(LoadFile);
MILLION_POINTS(SaveFile);

}  // namespace
}  // namespace landsmith

BENCHMARK_MAIN();
