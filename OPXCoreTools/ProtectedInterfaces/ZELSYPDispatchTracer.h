// ZELSYPDispatchTracer: while it lives, one line for each step of every dispatch: who runs, where, and who consumes.
// ZELSYPDispatchTracer tracer([](const std::string& i_line) { std::cerr << i_line << '\n'; });
//
// A handler "runs"; it "consumes" if the arguments are consumed when it returns and were not before; it is "passed over"
// because they were. A "class handler" was registered for a class, an "instance handler" for none: a line says what a
// handler was registered for, also where a store took it over from another one. The position counts within the list.
// Steps of a nested dispatch stand between the line of the handler that raised it and that handler's "consumes". Several
// may live at once. Without one, a dispatch costs what it always does. UI thread.
#ifndef ZELSYPDispatchTracer_H
#define ZELSYPDispatchTracer_H

#include "ZELSYPDispatchObserver.h"
#include "ZELSYPEventArgs.h"
#include "ZELSYPEventHandler.h"
#include "ZELSYPEventHandlerInfo.h"
#include "ZELSYPEventPathElt.h"

#include <functional>
#include <memory>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <utility>

class ZELSYPDispatchTracer final : public ZELSYPDispatchObserver
{
public:
  enum class Format
  {
    // runs Door.Opened at Door@0x5581, class handler of Furniture, position 1: Bell@0x5582
    // runs Door.Opened at Door@0x5581, instance handler, position 0: Bell@0x5583
    // Names stand as they are. An event whose owner class is null is told as one of "no class".
    Text,
    // {"step":"runs","event":"Door.Opened","node":"Door@0x5581","list":0,"class":"Furniture","position":1,"handler":"Bell@0x5582"}
    // {"step":"runs","event":"Door.Opened","node":"Door@0x5581","list":1,"class":null,"position":0,"handler":"Bell@0x5583"}
    // Names are escaped; what is not UTF-8 in them is replaced.
    JSON
  };

  // i_write takes each line, without an end of line. It is not told of what it dispatches itself, and may destroy the
  // tracer. What it throws goes through the dispatch; it gets the next line all the same.
  explicit ZELSYPDispatchTracer(std::function<void(const std::string&)> i_write, Format i_format = Format::Text)
      : _pOutput(std::make_shared<Output>(std::move(i_write))), _format(i_format)
  {
  }

private:
  class Output
  {
  public:
    explicit Output(std::function<void(const std::string&)> i_write) : _write(std::move(i_write)) {}
    bool IsFree() const { return _write && !_isWriting; }
    void Write(const std::string& i_line)
    {
      struct End
      {
        ~End() { _isWriting = false; }
        bool& _isWriting;
      };
      _isWriting = true;
      const End end{_isWriting};
      _write(i_line);
    }

  private:
    const std::function<void(const std::string&)> _write;
    bool _isWriting = false;
  };

  void HandlerRuns(const Step& i_step) override { Write("runs", i_step); }
  void HandlerRan(const Step& i_step) override
  {
    if (!i_step._wasConsumed && i_step._args.IsConsumed())
      Write("consumes", i_step);
  }
  void HandlerSkipped(const Step& i_step) override { Write("passed over", i_step); }

  // The output is held meanwhile: it may destroy the tracer.
  void Write(const char* i_what, const Step& i_step) const
  {
    const std::shared_ptr<Output> pOutput = _pOutput;
    if (pOutput->IsFree())
      pOutput->Write(_format == Format::Text ? AsText(i_what, i_step) : AsJSON(i_what, i_step));
  }

  static std::string AsText(const char* i_what, const Step& i_step)
  {
    std::ostringstream line;
    line << i_what << ' ' << NameOfEvent(i_step) << " at " << NameOf(i_step._stop.GetNode()) << ", " << KindOf(i_step) << ", position "
         << i_step._index << ": " << NameOf(i_step._info.GetHandler());
    return line.str();
  }
  // A name may hold anything: a factory that makes events by itself may give them any.
  static std::string AsJSON(const char* i_what, const Step& i_step)
  {
    const nlohmann::ordered_json line{{"step", i_what},
                                      {"event", NameOfEvent(i_step)},
                                      {"node", NameOf(i_step._stop.GetNode())},
                                      {"list", i_step._list},
                                      {"class", ClassAsJSON(i_step)},
                                      {"position", i_step._index},
                                      {"handler", NameOf(i_step._info.GetHandler())}};
    return line.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
  }
  static std::string NameOfEvent(const Step& i_step)
  {
    const ZELSYPEvent* const pEvent = i_step._args.GetEvent();
    if (!pEvent)
      return "no event";
    const ZELMetaClass* const pOwner = pEvent->GetOwnerClass();
    return std::string(pOwner ? pOwner->GetName() : "no class") + "." + pEvent->GetName();
  }
  static std::string KindOf(const Step& i_step)
  {
    const ZELMetaClass* const pClass = i_step._info.GetRegisteredClass();
    return pClass ? std::string("class handler of ") + pClass->GetName() : "instance handler";
  }
  static nlohmann::ordered_json ClassAsJSON(const Step& i_step)
  {
    const ZELMetaClass* const pClass = i_step._info.GetRegisteredClass();
    return pClass ? pClass->GetName() : nlohmann::ordered_json();
  }
  static std::string NameOf(const ZELBaseUnknown* i_pObject)
  {
    std::ostringstream name;
    name << i_pObject->IsA() << '@' << static_cast<const void*>(i_pObject);
    return name.str();
  }

  const std::shared_ptr<Output> _pOutput;
  const Format _format;
};

#endif
