// EventModel: what routed events must do, told slowly with lists of numbers, to compare the real ones with.
// EventModel model; model.Add(model.AtNode(1), event, handler, false); auto dispatch = model.Begin(route, event);
//
// Everything is a number: nodes, classes, events, handlers. Nothing is shared: every list is a copy.
#ifndef EventModel_H
#define EventModel_H

#include <iterator>
#include <map>
#include <set>
#include <utility>
#include <vector>

class EventModel
{
public:
  typedef int Id;
  struct Registration
  {
    Id _handler;
    bool _handlesConsumed;
  };
  typedef std::vector<Registration> List;
  typedef std::map<Id, List> Store; // by event
  struct Run
  {
    Id _node;
    Id _handler;
    bool _handlesConsumed;
  };
  // One dispatch: what is to run is settled from the beginning.
  class Dispatch
  {
  public:
    explicit Dispatch(std::vector<Run> i_runs) : _runs(std::move(i_runs)) {}
    // What runs next, null at the end.
    const Run* Next();
    void Consume() { _isConsumed = true; }

  private:
    std::vector<Run> _runs;
    std::size_t _next = 0;
    bool _isConsumed = false;
  };
  // A node of a route, with its classes, the most derived one first.
  struct Stop
  {
    Id _node;
    std::vector<Id> _classes;
  };

  Store& AtNode(Id i_node) { return _nodes[i_node]; }
  Store& AtClass(Id i_class) { return _classes[i_class]; }
  // Forgets all others.
  void KeepNodes(const std::set<Id>& i_nodes)
  {
    Keep(i_nodes, _nodes, [](const auto& i_each) { return i_each.first; });
  }
  void KeepDead(const std::set<Id>& i_handlers)
  {
    Keep(i_handlers, _dead, [](Id i_each) { return i_each; });
  }

  static void Add(Store& io_store, Id i_event, Id i_handler, bool i_handlesConsumed);
  // Whether there was one. The first one goes.
  static bool Remove(Store& io_store, Id i_event, Id i_handler);
  void Kill(Id i_handler) { _dead.insert(i_handler); }
  bool IsDead(Id i_handler) const { return _dead.count(i_handler) > 0; }
  // The list for the event, without the dead, who are gone for good.
  List GetHandlers(Store& io_store, Id i_event);
  Dispatch Begin(const std::vector<Stop>& i_route, Id i_event);

  int CountRegistrations() const;
  void AddHandlersTo(std::set<Id>& io_handlers) const;

private:
  template <class Container, class GetId>
  static void Keep(const std::set<Id>& i_ids, Container& io_container, GetId i_getId)
  {
    for (auto it = io_container.begin(); it != io_container.end();)
      it = i_ids.count(i_getId(*it)) ? std::next(it) : io_container.erase(it);
  }
  template <class Visit>
  void VisitRegistrations(Visit i_visit) const;
  void AddRuns(Id i_node, Store& io_store, Id i_event, std::vector<Run>& io_runs);

  std::map<Id, Store> _nodes;
  std::map<Id, Store> _classes;
  std::set<Id> _dead;
};

#endif
