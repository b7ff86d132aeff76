// What it costs to raise one event at the leaf of a chain of 1, 10 and 100 nodes, from there to the root, beside signal
// libraries and a walk written by hand (Events/ has one file a contender). This process has one thread, which must stay
// so: reference counts are cheaper then. EventsThreadsBenchmark.cpp measures the same beside a second thread.
//
// RaiseUnheard               No handler anywhere.
// RaiseHeardElsewhere        No handler at the chain, but one at another node.
// RaiseHeardEverywhere       One handler at every node.
// RaiseTenAtOrigin           Ten handlers at the leaf.
// RaiseClass...              The same with one handler more for the middle one of the nodes' three classes, which runs at
//                            every node. Of the peers, those that have such handlers.
// AddRemoveHandler           One handler more and gone again, where there are 0 or 10.
// CopyList                   A copy of a list of ten handlers, and its end.
// IdleListenerMemory         Bytes of one of 100,000 listeners that never had a handler.
// ListenerMemory             The same with one handler each, shared by all where the contender can.
//
// Every contender makes its payload anew for each raise, on the stack, and every handler adds the payload's amount to a
// sum; a case whose sum is wrong fails. Peers without routes walk from parent to parent by plain pointers. sigc++ counts
// nothing and looks nothing up, and asks nobody whether it is still there: what a route holds and finds is not in its time.
//
// What made the project's routes fast, by instructions counted (of 100 nodes with one handler each, a node went from 667 to
// 330; a dispatch that nobody hears, from 392 to 253): stops, their lists and the route itself stand on the stack or in
// memory kept from the last dispatch; nothing is looked up while nobody anywhere listens to the event; a stop borrows the
// reference that the route holds on its node (beside a second thread a pair of locked instructions a node); a list is asked
// and walked by pointers over the very snapshot that its stop keeps; the steps of a dispatch are inlined into one function,
// which has one way out, so that the compiler does not take the end of the route for the path of an error; the library
// calls its own functions directly; a block of memory is taken back by the thread that took it, which needs no counting; one
// lender serves all nodes of a route; the answers of the builder for one object are cold, or the compiler would test every
// route for that builder, three times a node. Ten handlers at the origin went from 46 ns to 44 by two taken
// jumps less a handler, which the compiler is told will likely stay and run, and to 40 by the end of the builder, inlined
// where it is used.
//
// Tried and dropped: walking a snapshot to ask who must be removed without comparing it with the list after each answer. It
// hid a list that a handler empties while it is asked. Stops aligned to cache lines, stops fetched before they are taken,
// what a store found last next to the count of its node, one test for observers and consumed arguments together (a branch
// less a handler), the likely ways through the steps that are taken once a dispatch, and -O2: no difference that lasts.
//
// What is left beside a second thread with nobody listening is one pair of locked instructions a node, since a route holds
// its nodes while it is built.
#include "Events/EventsCases.h"
#include "Threads/RunWithThreads.h"

int main(int i_argc, char** i_argv)
{
  return RunWithOneThread(i_argc, i_argv, RegisterEvents);
}
