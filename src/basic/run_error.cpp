#include "basic/run_error.h"

namespace basic {

const char* Run_Error::what() const noexcept {
  switch (number_) {
    case Error_Number::Invalid_Procedure_Call: return "Invalid procedure call or argument";
    case Error_Number::Overflow: return "Overflow";
    case Error_Number::Subscript_Out_Of_Range: return "Subscript out of range";
    case Error_Number::Type_Mismatch: return "Type mismatch";
    case Error_Number::Bad_File_Number: return "Bad file name or number";
    case Error_Number::File_Not_Found: return "File not found";
    case Error_Number::File_Already_Open: return "File already open";
    case Error_Number::Device_Io_Error: return "Device I/O error";
    case Error_Number::Disk_Full: return "Disk full";
    case Error_Number::Input_Past_End: return "Input past end of file";
    case Error_Number::Permission_Denied: return "Permission denied";
    case Error_Number::Path_File_Access: return "Path/File access error";
    case Error_Number::Path_Not_Found: return "Path not found";
    case Error_Number::No_Object: return "The system could not make an object that the calendar needs";
    case Error_Number::Invalid_Picture: return "Invalid picture";
    case Error_Number::Cancel_Selected: return "Cancel was selected.";
  }
  return "Unknown error";
}

}  // namespace basic
