// The arguments of a data source's three events.
#include "RecordingFailureHandler.h"
#include "ZELSYPAbstractDataSource.h"
#include "ZELSYPModelChangedEventArgs.h"
#include "ZELSYPSelectionChangedEventArgs.h"
#include "ZELSYPViewUpdatedEventArgs.h"

#include <gmock/gmock.h>

#include <functional>
#include <string>
#include <type_traits>

using nlohmann::json;
using testing::ElementsAre;
namespace Records = ZELSYPDataSourceParameters;

namespace
{
const json transactions = json::parse(R"([{"add":["a"]},{"remove":["b"]}])");

// What the three classes have in common, each with its event, its payload and how to read it back.
struct ModelChanged
{
  using Args = ZELSYPModelChangedEventArgs;
  static constexpr const char* name = "ZELSYPModelChangedEventArgs";
  static ZELSYPEvent* GetEvent() { return ZELSYPAbstractDataSource::ModelChanged(); }
  static json GetPayload() { return transactions; }
  static decltype(auto) Read(const Args& i_args) { return i_args.GetTransactions(); }
};

struct ViewUpdated
{
  using Args = ZELSYPViewUpdatedEventArgs;
  static constexpr const char* name = "ZELSYPViewUpdatedEventArgs";
  static ZELSYPEvent* GetEvent() { return ZELSYPAbstractDataSource::ViewUpdated(); }
  static json GetPayload() { return transactions; }
  static decltype(auto) Read(const Args& i_args) { return i_args.GetTransactions(); }
};

struct SelectionChanged
{
  using Args = ZELSYPSelectionChangedEventArgs;
  static constexpr const char* name = "ZELSYPSelectionChangedEventArgs";
  static ZELSYPEvent* GetEvent() { return ZELSYPAbstractDataSource::SelectionChanged(); }
  static Records::SelectionChangeParameters GetPayload() { return {std::vector<std::string>{"a"}, std::vector<std::string>{"b"}}; }
  static decltype(auto) Read(const Args& i_args) { return i_args.GetParameters(); }
};

json ToJSON(const json& i_value)
{
  return i_value;
}
json ToJSON(const Records::SelectionChangeParameters& i_value)
{
  return i_value.ComputeJSON();
}

template <class Kind>
class DataSourceEventArgsTest : public testing::Test
{
protected:
  typename Kind::Args args{Kind::GetEvent(), Kind::GetPayload(), [this](json& io_answer) { answered.push_back(io_answer); }};
  std::vector<json> answered;
};

using Kinds = testing::Types<ModelChanged, SelectionChanged, ViewUpdated>;
struct KindNames
{
  template <class Kind>
  static std::string GetName(int)
  {
    return Kind::name;
  }
};
TYPED_TEST_SUITE(DataSourceEventArgsTest, Kinds, KindNames);
} // namespace

TYPED_TEST(DataSourceEventArgsTest, TheirClassIsAKindOfTheEventArguments)
{
  using Args = typename TypeParam::Args;
  EXPECT_STREQ(Args::ClassName(), TypeParam::name);
  EXPECT_EQ(Args::MetaObject()->GetBaseClass(), ZELSYPEventArgs::MetaObject());
  EXPECT_STREQ(Args::MetaObject()->GetModule(), "OPXCoreTools");
  EXPECT_EQ(ZELMetaClass::Find(TypeParam::name), Args::MetaObject());
  EXPECT_TRUE(Args::ClassId() == Args::MetaObject()->GetClassId());
  EXPECT_EQ(Args::CreateItself(), nullptr);
}

TYPED_TEST(DataSourceEventArgsTest, TheyKnowTheirClass)
{
  EXPECT_STREQ(this->args.IsA(), TypeParam::name);
  EXPECT_EQ(this->args.GetMetaObject(), TypeParam::Args::MetaObject());
  EXPECT_EQ(this->args.IsAKindOf("ZELSYPEventArgs"), 1);
  EXPECT_EQ(this->args.IsAKindOf("ZELSYPEvent"), 0);
}

TYPED_TEST(DataSourceEventArgsTest, TheyCarryTheEventAndAPayload)
{
  EXPECT_EQ(this->args.GetEvent(), TypeParam::GetEvent());
  EXPECT_EQ(ToJSON(TypeParam::Read(this->args)), ToJSON(TypeParam::GetPayload()));
}

TYPED_TEST(DataSourceEventArgsTest, ThePayloadTheyGiveIsTheirOwnAndCannotBeChanged)
{
  EXPECT_TRUE((std::is_same_v<decltype(TypeParam::Read(this->args)), const decltype(TypeParam::GetPayload())&>));
  const auto& payload = TypeParam::Read(this->args);
  const auto& again = TypeParam::Read(this->args);
  EXPECT_EQ(&payload, &again);
}

TYPED_TEST(DataSourceEventArgsTest, TheSuccessCallbackTheyGiveIsACopyThatOutlivesThem)
{
  std::function<void(json&)> callback;
  {
    const typename TypeParam::Args shortLived(TypeParam::GetEvent(), TypeParam::GetPayload(), this->args.GetSuccessCallback());
    callback = shortLived.GetSuccessCallback();
  }
  json answer = 7;
  callback(answer);
  EXPECT_THAT(this->answered, ElementsAre(7));
}

TYPED_TEST(DataSourceEventArgsTest, TheSuccessCallbackCanBeAskedForSeveralTimes)
{
  json answer = 7;
  this->args.GetSuccessCallback()(answer);
  this->args.GetSuccessCallback()(answer);
  EXPECT_THAT(this->answered, ElementsAre(7, 7));
}

TYPED_TEST(DataSourceEventArgsTest, ThereMayBeNoSuccessCallback)
{
  const typename TypeParam::Args unanswered(TypeParam::GetEvent(), TypeParam::GetPayload(), nullptr);
  EXPECT_FALSE(unanswered.GetSuccessCallback());
}

TYPED_TEST(DataSourceEventArgsTest, WithoutAnEventTheyReportItAndAreBuilt)
{
  RecordingFailureHandler failures;
  const typename TypeParam::Args eventless(nullptr, TypeParam::GetPayload(), nullptr);
  EXPECT_THAT(failures.GetMessages(), ElementsAre("pointer i_pEvent is NULL"));
  EXPECT_EQ(eventless.GetEvent(), nullptr);
  EXPECT_EQ(ToJSON(TypeParam::Read(eventless)), ToJSON(TypeParam::GetPayload()));
}
