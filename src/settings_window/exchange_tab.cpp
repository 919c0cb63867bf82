#include "settings_window/exchange_tab.h"

#include <array>
#include <span>

namespace settings_window {

namespace {

using platform::Stock_Picture;

struct Button_Row {
  const char* Caption;
  double Left;  // twips
  Stock_Picture Picture;
};

constexpr std::array<Button_Row, 3> imports{{{"Data File", 495, Stock_Picture::Import_Data},
                                             {"Configuration", 2025, Stock_Picture::Import_Configuration},
                                             {"from CSV File", 3555, Stock_Picture::Import_Csv}}};
constexpr std::array<Button_Row, 4> exports{{{"Data File", 180, Stock_Picture::Export_Data},
                                             {"Configuration", 1395, Stock_Picture::Export_Configuration},
                                             {"to Text File", 2610, Stock_Picture::Export_Text},
                                             {"to CSV File", 3825, Stock_Picture::Export_Csv}}};

constexpr double top = 450, size = 1140;  // twips

void Make_Buttons(const toolkit::Control_Array<toolkit::Command_Button>& buttons, std::span<const Button_Row> rows) {
  for (int i = 0; i < buttons.Count(); ++i) {
    const Button_Row& row = rows[static_cast<std::size_t>(i)];
    toolkit::Command_Button& button = buttons[i];
    button.Caption = row.Caption;
    button.Place({row.Left, top, size, size});
    button.Picture = row.Picture;
  }
}

}  // namespace

Exchange_Tab::Exchange_Tab(toolkit::Frame& page, exchange::Data_Files& data_files, exchange::Config& config,
                           exchange::Csv& csv)
    : Frame15(page, "Frame15"), Import_Btn(Frame15, "Import_Btn", imports.size()), Frame2(page, "Frame2"),
      Export_Btn(Frame2, "Export_Btn", exports.size()) {
  Frame15.Place({0, 0, 5145, 1875});
  Frame15.Caption = "Import";
  Make_Buttons(Import_Btn, imports);
  Frame2.Place({0, 1965, 5145, 1875});
  Frame2.Caption = "Export";
  Make_Buttons(Export_Btn, exports);
  Import_Btn[0].On_Click = [&data_files] { data_files.Import_Data(); };
  Import_Btn[1].On_Click = [&config] { config.Import_Config(); };
  Import_Btn[2].On_Click = [&csv] { csv.Import_CSV(); };
  Export_Btn[0].On_Click = [&data_files] { data_files.Export_Data(); };
  Export_Btn[1].On_Click = [&config] { config.Export_Config(); };
  Export_Btn[2].On_Click = [&data_files] { data_files.Export_Text(); };
  Export_Btn[3].On_Click = [&csv] { csv.Export_CSV(); };
}

}  // namespace settings_window
