// The answer of 100,000 rows with six properties each: made into a JSON value, into text, and dropped.
//
// AnswerTake       TakeJSON on filled records. The peer moves the same values one by one into objects of the JSON library.
// AnswerCompute    ComputeJSON, which copies, and dropping the value. The peer copies the same values one by one.
// AnswerWrite      WriteJSON. The peer is a RapidJSON writer over plain structures, which have no names to look up, no
//                  order to keep and no kinds to tell apart; and the JSON library's text of the value of ComputeJSON,
//                  which has to be made for it.
// AnswerDestroy    Dropping the filled records. The peer drops an array of the library's objects.
//
// Tried and dropped in WriteJSON, in instructions for one answer: counting the plain characters of a text and copying
// them with memcpy, the last ones looked at one by one (329 million), or eight at a time (323 million), in place of
// copying each word while it is looked at (284 million). Of these, 36 million are the digits of the fractions, which
// have to be the JSON library's.
#include "ZELSYPDataSourceParameters.h"

#include <benchmark/benchmark.h>

#include <string>
#include <utility>
#include <vector>

#ifdef OPX_PEER_RAPIDJSON
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>
#endif

namespace
{
using nlohmann::json;
using ZELSYPDataSourceParameters::Properties;
using ZELSYPDataSourceParameters::TreeNodeProperties;
using ZELSYPDataSourceParameters::TreeNodesAnswerParameters;

constexpr int s_rows = 100'000;

struct Row
{
  std::string id;
  std::string name;
  std::string kind;
  std::string modified;
  std::int64_t size;
  double share;
  bool hasChildren;
};

std::vector<Row> MakeRows()
{
  std::vector<Row> rows;
  rows.reserve(s_rows);
  for (int row = 0; row < s_rows; ++row)
  {
    const std::string number = std::to_string(row);
    rows.push_back({"f" + number, "document_" + number + ".txt", "text file", "2026-03-14T15:09:26.535Z", row * std::int64_t{37},
                    row / 1000.0, row % 10 == 0});
  }
  return rows;
}

const std::vector<Row>& GetRows()
{
  static const std::vector<Row> rows = MakeRows();
  return rows;
}

TreeNodesAnswerParameters FillAnswer()
{
  std::vector<TreeNodeProperties> nodes;
  nodes.reserve(s_rows);
  for (const Row& row : GetRows())
    nodes.emplace_back(
        row.id,
        Properties{
            {"id", row.id}, {"kind", row.kind}, {"modified", row.modified}, {"name", row.name}, {"share", row.share}, {"size", row.size}},
        row.hasChildren, -1);
  std::vector<std::vector<TreeNodeProperties>> blocks;
  blocks.push_back(std::move(nodes));
  return {std::move(blocks), {s_rows}};
}

// Rows is const for copies.
template <typename Rows>
json BuildByHand(Rows& io_rows)
{
  constexpr bool moves = !std::is_const_v<Rows>;
  const auto give = [](auto& io_value) -> std::conditional_t<moves, std::string&&, const std::string&>
  { return static_cast<std::conditional_t<moves, std::string&&, const std::string&>>(io_value); };
  json::array_t list;
  list.reserve(io_rows.size());
  for (auto& row : io_rows)
  {
    json::object_t object;
    object.emplace("name", give(row.name));
    object.emplace("kind", give(row.kind));
    object.emplace("size", row.size);
    object.emplace("modified", give(row.modified));
    object.emplace("id", give(row.id));
    object.emplace("share", row.share);
    object.emplace("wux_group", row.hasChildren);
    list.emplace_back(std::move(object));
  }
  return list;
}

void CountRows(benchmark::State& io_state)
{
  io_state.SetItemsProcessed(io_state.iterations() * s_rows);
}

void TakeOurs(benchmark::State& io_state)
{
  for (auto _ : io_state)
  {
    io_state.PauseTiming();
    auto answer = FillAnswer();
    io_state.ResumeTiming();
    json value = answer.TakeJSON();
    benchmark::DoNotOptimize(value);
    io_state.PauseTiming();
    value = nullptr;
    answer = {};
    io_state.ResumeTiming();
  }
  CountRows(io_state);
}

void TakePeer(benchmark::State& io_state)
{
  for (auto _ : io_state)
  {
    io_state.PauseTiming();
    auto rows = GetRows();
    io_state.ResumeTiming();
    json value = BuildByHand(rows);
    benchmark::DoNotOptimize(value);
    io_state.PauseTiming();
    value = nullptr;
    rows.clear();
    io_state.ResumeTiming();
  }
  CountRows(io_state);
}

void ComputeOurs(benchmark::State& io_state)
{
  const auto answer = FillAnswer();
  for (auto _ : io_state)
    benchmark::DoNotOptimize(answer.ComputeJSON());
  CountRows(io_state);
}

void ComputePeer(benchmark::State& io_state)
{
  const auto& rows = GetRows();
  for (auto _ : io_state)
    benchmark::DoNotOptimize(BuildByHand(rows));
  CountRows(io_state);
}

void WriteOurs(benchmark::State& io_state)
{
  const auto answer = FillAnswer();
  for (auto _ : io_state)
  {
    std::string text;
    answer.WriteJSON(text);
    benchmark::DoNotOptimize(text.data());
  }
  CountRows(io_state);
}

void WriteLibrary(benchmark::State& io_state)
{
  const auto answer = FillAnswer();
  for (auto _ : io_state)
    benchmark::DoNotOptimize(answer.ComputeJSON().dump());
  CountRows(io_state);
}

void DestroyOurs(benchmark::State& io_state)
{
  for (auto _ : io_state)
  {
    io_state.PauseTiming();
    auto answer = FillAnswer();
    io_state.ResumeTiming();
    answer = {};
  }
  CountRows(io_state);
}

void DestroyPeer(benchmark::State& io_state)
{
  for (auto _ : io_state)
  {
    io_state.PauseTiming();
    json value = BuildByHand(GetRows());
    io_state.ResumeTiming();
    value = nullptr;
  }
  CountRows(io_state);
}

#ifdef OPX_PEER_RAPIDJSON
using Writer = rapidjson::Writer<rapidjson::StringBuffer>;

void Put(Writer& io_writer, const std::string& i_text)
{
  io_writer.String(i_text.data(), static_cast<rapidjson::SizeType>(i_text.size()));
}

void WriteRow(Writer& io_writer, const Row& i_row)
{
  io_writer.StartObject();
  io_writer.Key("id", 2);
  Put(io_writer, i_row.id);
  io_writer.Key("kind", 4);
  Put(io_writer, i_row.kind);
  io_writer.Key("modified", 8);
  Put(io_writer, i_row.modified);
  io_writer.Key("name", 4);
  Put(io_writer, i_row.name);
  io_writer.Key("share", 5);
  io_writer.Double(i_row.share);
  io_writer.Key("size", 4);
  io_writer.Int64(i_row.size);
  io_writer.Key("wux_group", 9);
  io_writer.Bool(i_row.hasChildren);
  io_writer.EndObject();
}

void WritePeer(benchmark::State& io_state)
{
  for (auto _ : io_state)
  {
    rapidjson::StringBuffer buffer;
    Writer writer(buffer);
    writer.StartArray();
    for (const Row& row : GetRows())
      WriteRow(writer, row);
    writer.EndArray();
    benchmark::DoNotOptimize(buffer.GetString());
  }
  CountRows(io_state);
}

BENCHMARK(WritePeer)->Name("AnswerWrite/RapidJSON")->Unit(benchmark::kMillisecond);
#endif

BENCHMARK(TakeOurs)->Name("AnswerTake/Project")->Unit(benchmark::kMillisecond);
BENCHMARK(TakePeer)->Name("AnswerTake/nlohmann")->Unit(benchmark::kMillisecond);
BENCHMARK(ComputeOurs)->Name("AnswerCompute/Project")->Unit(benchmark::kMillisecond);
BENCHMARK(ComputePeer)->Name("AnswerCompute/nlohmann")->Unit(benchmark::kMillisecond);
BENCHMARK(WriteOurs)->Name("AnswerWrite/Project")->Unit(benchmark::kMillisecond);
BENCHMARK(WriteLibrary)->Name("AnswerWrite/nlohmann")->Unit(benchmark::kMillisecond);
BENCHMARK(DestroyOurs)->Name("AnswerDestroy/Project")->Unit(benchmark::kMillisecond);
BENCHMARK(DestroyPeer)->Name("AnswerDestroy/nlohmann")->Unit(benchmark::kMillisecond);
} // namespace
