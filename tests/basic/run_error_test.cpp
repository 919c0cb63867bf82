#include "basic/run_error.h"

#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <string>

using basic::Error_Number;
using basic::Run_Error;

namespace {

struct Known {
  Error_Number Which;
  int Number;
  const char* Description;
};

// The numbers and descriptions that the report at the program's end shows.
constexpr Known known[] = {
    {Error_Number::Invalid_Procedure_Call, 5, "Invalid procedure call or argument"},
    {Error_Number::Overflow, 6, "Overflow"},
    {Error_Number::Subscript_Out_Of_Range, 9, "Subscript out of range"},
    {Error_Number::Type_Mismatch, 13, "Type mismatch"},
    {Error_Number::Bad_File_Number, 52, "Bad file name or number"},
    {Error_Number::File_Not_Found, 53, "File not found"},
    {Error_Number::File_Already_Open, 55, "File already open"},
    {Error_Number::Device_Io_Error, 57, "Device I/O error"},
    {Error_Number::Disk_Full, 61, "Disk full"},
    {Error_Number::Input_Past_End, 62, "Input past end of file"},
    {Error_Number::Permission_Denied, 70, "Permission denied"},
    {Error_Number::Path_File_Access, 75, "Path/File access error"},
    {Error_Number::Path_Not_Found, 76, "Path not found"},
    {Error_Number::Cancel_Selected, 32755, "Cancel was selected."},
};

}  // namespace

TEST(Run_Error, Carries_the_number_and_its_description) {
  for (const Known& error : known) {
    EXPECT_EQ(Run_Error(error.Which).Number(), error.Number);
    EXPECT_STREQ(Run_Error(error.Which).what(), error.Description);
  }
}

TEST(Run_Error, Has_a_description_of_its_own_for_each_number) {
  std::set<std::string> descriptions;
  for (const Known& error : known) descriptions.insert(Run_Error(error.Which).what());
  for (const Error_Number number : {Error_Number::No_Object, Error_Number::Invalid_Picture}) {
    EXPECT_GT(std::strlen(Run_Error(number).what()), 0U);
    descriptions.insert(Run_Error(number).what());
  }
  EXPECT_EQ(descriptions.size(), std::size(known) + 2);
  EXPECT_EQ(descriptions.count("Unknown error"), 0U);
}

TEST(Run_Error, Is_caught_as_a_standard_exception) {
  try {
    throw Run_Error(Error_Number::Overflow);
  } catch (const std::exception& error) {
    EXPECT_STREQ(error.what(), "Overflow");
  }
}
