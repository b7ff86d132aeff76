#include "ZELSYPImplicitSharedData.h"

#include "RecordingFailureHandler.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
class Payload : public ZELSYPImplicitSharedData
{
public:
  explicit Payload(int i_value, int* io_pDeletions = nullptr) : _value(i_value), _pDeletions(io_pDeletions) {}
  ~Payload() override
  {
    if (_pDeletions)
      ++*_pDeletions;
  }
  ZELSYPImplicitSharedData* Clone() override
  {
    Payload* const pClone = new Payload(*this);
    pClone->_refcount = 1;
    return pClone;
  }

  int GetReferenceCount() const { return _refcount; }
  void SetReferenceCount(int i_count) { _refcount = i_count; }

  int _value;
  int* _pDeletions;
};

Payload* Writable(Payload* io_pPayload)
{
  return static_cast<Payload*>(io_pPayload->CloneIfShared());
}
} // namespace

TEST(ZELSYPImplicitSharedDataTest, NewPayloadHasOneReference)
{
  EXPECT_EQ(1, Payload(1).GetReferenceCount());
}

TEST(ZELSYPImplicitSharedDataTest, LastDetachDeletesThePayload)
{
  int deletions = 0;
  Payload* const pPayload = new Payload(1, &deletions);
  pPayload->Attach();
  pPayload->Detach();
  EXPECT_EQ(0, deletions);
  pPayload->Detach();
  EXPECT_EQ(1, deletions);
}

TEST(ZELSYPImplicitSharedDataTest, SoleOwnerWritesInPlace)
{
  Payload payload(1);
  EXPECT_EQ(&payload, Writable(&payload));
  EXPECT_EQ(1, payload.GetReferenceCount());
}

TEST(ZELSYPImplicitSharedDataTest, SharedPayloadIsClonedAndLosesOneReference)
{
  Payload* const pPayload = new Payload(5);
  pPayload->Attach();
  Payload* const pClone = Writable(pPayload);
  EXPECT_NE(pPayload, pClone);
  EXPECT_EQ(5, pClone->_value);
  EXPECT_EQ(1, pPayload->GetReferenceCount());
  EXPECT_EQ(1, pClone->GetReferenceCount());
  pPayload->Detach();
  pClone->Detach();
}

TEST(ZELSYPImplicitSharedDataTest, DetachWithoutAReferenceReportsAndDeletesNothing)
{
  RecordingFailureHandler failures;
  int deletions = 0;
  {
    Payload payload(1, &deletions);
    payload.SetReferenceCount(0);
    payload.Detach();
    EXPECT_EQ(0, payload.GetReferenceCount());
    payload.SetReferenceCount(-1);
    payload.Detach();
    EXPECT_EQ(-1, payload.GetReferenceCount());
    EXPECT_EQ(0, deletions);
  }
  EXPECT_THAT(failures.GetMessages(), ElementsAre("boolean _refcount>0 is FALSE", "boolean _refcount>0 is FALSE"));
}

TEST(ZELSYPImplicitSharedDataTest, CloneIfSharedWithoutAReferenceReportsAndAnswersThePayload)
{
  RecordingFailureHandler failures;
  Payload payload(1);
  payload.SetReferenceCount(0);
  EXPECT_EQ(&payload, payload.CloneIfShared());
  EXPECT_EQ(0, payload.GetReferenceCount());
  EXPECT_THAT(failures.GetMessages(), ElementsAre("boolean _refcount>0 is FALSE"));
}

TEST(ZELSYPImplicitSharedDataTest, CopyConstructionAndAssignmentTakeTheReferenceCountAlong)
{
  RecordingFailureHandler failures;
  Payload payload(1);
  payload.SetReferenceCount(3);
  const Payload copy(payload);
  Payload assigned(2);
  assigned = payload;
  EXPECT_EQ(3, copy.GetReferenceCount());
  EXPECT_EQ(3, assigned.GetReferenceCount());
  EXPECT_THAT(failures.GetMessages(), IsEmpty());
}

TEST(ZELSYPImplicitSharedDataTest, ReportsNameTheSourceOfThePayload)
{
  RecordingFailureHandler failures;
  Payload payload(1);
  payload.SetReferenceCount(0);
  payload.Detach();
  payload.CloneIfShared();
  ASSERT_EQ(2u, failures.GetFailures().size());
  for (const RecordingFailureHandler::Failure& failure : failures.GetFailures())
  {
    EXPECT_EQ("ZELSYPImplicitSharedData.cpp", failure.file);
    EXPECT_GT(failure.line, 0);
    EXPECT_EQ(std::nullopt, failure.details);
  }
}
