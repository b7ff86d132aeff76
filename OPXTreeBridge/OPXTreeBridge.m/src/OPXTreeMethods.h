// OPXTreeMethods: the methods of a tree session, each from its "params" to its answer.
// OPXTreeMethods methods(source, rows, pOutbox); methods.Call("tree/rows", params, pAnswer);
#ifndef OPXTreeMethods_H
#define OPXTreeMethods_H

#include "OPXTreeNotifications.h"
#include "OPXTreeRowsSource.h"

#include <memory>
#include <nlohmann/json.hpp>
#include <string>

class OPXTreeAnswer;
class OPXTreeOutbox;
class ZELSYPAbstractDataSource;

class OPXTreeMethods
{
public:
  // All are borrowed but the outbox.
  OPXTreeMethods(ZELSYPAbstractDataSource& io_source, OPXTreeRowsSource& io_rows, std::shared_ptr<OPXTreeOutbox> i_pOutbox);

  // Before the first call of each message.
  void StartMessage() const { _rows.StartMessage(); }
  // Sets the answer, at once or later. Throws an OPXTreeError when there is no such method or the parameters are wrong; lets
  // through what the source throws.
  void Call(const std::string& i_method, nlohmann::json& io_params, const std::shared_ptr<OPXTreeAnswer>& i_pAnswer);
  // From here on no event is heard and no success callback waits.
  void End() { _notifications.End(); }

private:
  using Answer = std::shared_ptr<OPXTreeAnswer>;
  struct Method;

  void CallRows(nlohmann::json& io_params, const Answer& i_pAnswer);
  void CallStructure(nlohmann::json& io_params, const Answer& i_pAnswer);
  void CallSelectionChange(nlohmann::json& io_params, const Answer& i_pAnswer);
  void CallCollapseExpand(nlohmann::json& io_params, const Answer& i_pAnswer);
  void CallPointerEvent(nlohmann::json& io_params, const Answer& i_pAnswer);
  void CallSucceeded(nlohmann::json& io_params, const Answer& i_pAnswer);

  ZELSYPAbstractDataSource& _source;
  OPXTreeRowsSource& _rows;
  OPXTreeNotifications _notifications;
};

#endif
