#include "EventModel.h"

#include <algorithm>

const EventModel::Run* EventModel::Dispatch::Next()
{
  while (_next < _runs.size() && _isConsumed && !_runs[_next]._handlesConsumed)
    ++_next;
  return _next < _runs.size() ? &_runs[_next++] : nullptr;
}

void EventModel::Add(Store& io_store, Id i_event, Id i_handler, bool i_handlesConsumed)
{
  io_store[i_event].push_back({i_handler, i_handlesConsumed});
}

bool EventModel::Remove(Store& io_store, Id i_event, Id i_handler)
{
  List& list = io_store[i_event];
  const auto found = std::find_if(list.begin(), list.end(), [=](const Registration& i_each) { return i_each._handler == i_handler; });
  if (found == list.end())
    return false;
  list.erase(found);
  return true;
}

EventModel::List EventModel::GetHandlers(Store& io_store, Id i_event)
{
  List& list = io_store[i_event];
  list.erase(std::remove_if(list.begin(), list.end(), [this](const Registration& i_each) { return IsDead(i_each._handler); }), list.end());
  return list;
}

EventModel::Dispatch EventModel::Begin(const std::vector<Stop>& i_route, Id i_event)
{
  std::vector<Run> runs;
  for (const Stop& stop : i_route)
  {
    for (const Id itsClass : stop._classes)
      AddRuns(stop._node, AtClass(itsClass), i_event, runs);
    AddRuns(stop._node, AtNode(stop._node), i_event, runs);
  }
  return Dispatch(runs);
}

void EventModel::AddRuns(Id i_node, Store& io_store, Id i_event, std::vector<Run>& io_runs)
{
  for (const Registration& each : GetHandlers(io_store, i_event))
    io_runs.push_back({i_node, each._handler, each._handlesConsumed});
}

template <class Visit>
void EventModel::VisitRegistrations(Visit i_visit) const
{
  for (const auto* pStores : {&_nodes, &_classes})
    for (const auto& owner : *pStores)
      for (const auto& list : owner.second)
        for (const Registration& each : list.second)
          i_visit(each);
}

int EventModel::CountRegistrations() const
{
  int count = 0;
  VisitRegistrations([&count](const Registration&) { ++count; });
  return count;
}

void EventModel::AddHandlersTo(std::set<Id>& io_handlers) const
{
  VisitRegistrations([&io_handlers](const Registration& i_each) { io_handlers.insert(i_each._handler); });
}
