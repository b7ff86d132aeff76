// ZELSYPFailurePanel: the application's panel that asks the user what to do about a failed check.
// const ZELSYPFailurePanel::Entry ask = ZELSYPFailurePanel::GetEntry(); if (ask) answer = ask(...);
#ifndef ZELSYPFailurePanel_H
#define ZELSYPFailurePanel_H

class ZELSYPFailurePanel
{
public:
  typedef int (*Entry)(const char* i_message, const char* i_file, int i_line, const char* i_details);

  // What an entry answers.
  enum Answer
  {
    Stop = 0,
    Continue = 1,
    Hide = 2
  };

  // Null when the application has no panel. It is looked up once a process, found or not.
  static Entry GetEntry();
};

#endif
