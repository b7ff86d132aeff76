#include "ZELSYPSingleEventPathBuilder.h"

#include "RecordingFailureHandler.h"
#include "RouteWorld.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
class ZELSYPSingleEventPathBuilderTest : public testing::Test, protected RouteWorld
{
protected:
  RecordingFailureHandler _failures;
  ZELSYPEventArgs _args{_pUp};
};
} // namespace

TEST_F(ZELSYPSingleEventPathBuilderTest, RunsTheClassHandlersThenThoseOfTheObjectAndOfNobodyElse)
{
  Listen(*_leaf, "leaf");
  Listen(*_root, "root");
  Listen(Widget::MetaObject(), "widget");
  EXPECT_EQ(1, ZELSYPSingleEventPathBuilder(&_leaf->_handlers, &_classHandlers).Dispatch(_leaf, &_args));
  EXPECT_THAT(_log, ElementsAre("widget", "leaf"));
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPSingleEventPathBuilderTest, WithoutClassStoreOnlyTheObjectsOwnHandlersRun)
{
  Listen(*_leaf, "leaf");
  Listen(Widget::MetaObject(), "widget");
  EXPECT_EQ(1, ZELSYPSingleEventPathBuilder(&_leaf->_handlers, nullptr).Dispatch(_leaf, &_args));
  EXPECT_THAT(_log, ElementsAre("leaf"));
  EXPECT_THAT(_failures.GetMessages(), IsEmpty());
}

TEST_F(ZELSYPSingleEventPathBuilderTest, StoreServesWhateverNodeIsTheOrigin)
{
  Listen(*_leaf, "leaf");
  EXPECT_EQ(1, ZELSYPSingleEventPathBuilder(&_leaf->_handlers, nullptr).Dispatch(_root, &_args));
  EXPECT_THAT(_kept.back()->_nodes, ElementsAre(_root.Get()));
}

TEST_F(ZELSYPSingleEventPathBuilderTest, WithoutStoreItIsReportedAndRefusesToDispatch)
{
  ZELSYPSingleEventPathBuilder builder(nullptr, &_classHandlers);
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer _pEventHandlersSupport is NULL"));
  EXPECT_EQ("ZELSYPSingleEventPathBuilder.cpp", _failures.GetFailures()[0].file);
  Listen(Widget::MetaObject(), "widget");
  _failures.Clear();
  EXPECT_EQ(0, builder.Dispatch(_leaf, &_args));
  EXPECT_THAT(_failures.GetMessages(), ElementsAre("pointer _pEventHandlersSupport is NULL", "pointer pSupport is NULL",
                                                   "pointer pElt is NULL", "pointer pPath is NULL"));
  EXPECT_THAT(_log, IsEmpty());
}
