// The one error of the program: a number and its description, which the report at the program's end shows. A procedure
// with a failure path of its own catches it there; an error that none of them catches ends the program.
#pragma once

#include <exception>

namespace basic {

/// The numbers that the program can end with. Each has a description of its own.
enum class Error_Number {
  Invalid_Procedure_Call = 5,
  Overflow = 6,
  Subscript_Out_Of_Range = 9,
  Type_Mismatch = 13,
  Bad_File_Number = 52,
  File_Not_Found = 53,
  File_Already_Open = 55,
  Device_Io_Error = 57,
  Disk_Full = 61,
  Input_Past_End = 62,
  Permission_Denied = 70,
  Path_File_Access = 75,
  Path_Not_Found = 76,
  No_Object = 429,
  Invalid_Picture = 481,
  Cancel_Selected = 32755,
};

class Run_Error : public std::exception {
 public:
  explicit Run_Error(Error_Number number) noexcept : number_(number) {}

  [[nodiscard]] int Number() const noexcept { return static_cast<int>(number_); }

  /// The description that goes with the number, such as "Overflow".
  [[nodiscard]] const char* what() const noexcept override;

 private:
  Error_Number number_;
};

}  // namespace basic
