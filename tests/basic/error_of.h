// The error number that a call ends with.
#pragma once

#include "basic/run_error.h"

/// 0 if the call ends without an error.
template <class Call>
int Error_Of(Call&& call) {
  try {
    call();
    return 0;
  } catch (const basic::Run_Error& error) {
    return error.Number();
  }
}
