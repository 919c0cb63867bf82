// A settings store that takes nothing.
#include <gtest/gtest.h>

#include "basic/run_error.h"
#include "win32/registry_services.h"

TEST(Settings_Failure, A_value_that_cant_be_stored_is_error_75) {
  win32::Registry_Store store;
  const std::string too_long(20000, 'x');
  try {
    store.Save("Meridex Test", too_long, "Style", "1");
    ADD_FAILURE() << "a section of that name was made";
  } catch (const basic::Run_Error& error) {
    EXPECT_EQ(error.Number(), 75);
  }
  try {
    store.Save("Meridex Test", "Settings", too_long, "1");
    ADD_FAILURE() << "a value of that name was stored";
  } catch (const basic::Run_Error& error) {
    EXPECT_EQ(error.Number(), 75);
  }
}
