#include "settings/stored_settings.h"

#include "basic/convert.h"

namespace settings {

namespace {

/// Converts a stored text to the type of the variable that takes it.
struct Reader {
  Settings& values;
  const std::string& text;

  void operator()(basic::Int16 Settings::*variable) const { values.*variable = basic::To_Int16(text); }
  void operator()(std::int32_t Settings::*variable) const { values.*variable = basic::To_Int32(text); }
  void operator()(bool Settings::*variable) const { values.*variable = basic::To_Boolean(text); }
  void operator()(std::string Settings::*variable) const { values.*variable = text; }
};

struct Writer {
  const Settings& values;

  std::string operator()(std::string Settings::*variable) const { return values.*variable; }
  template <class Number>
  std::string operator()(Number Settings::*variable) const {
    return basic::To_Text(values.*variable);
  }
};

}  // namespace

void Stored_Settings::Load_Settings() {
  Desktop.Load();
  for (const Setting_Key& key : All_Keys())
    std::visit(Reader{Values, store_.Get(application, key.Section, key.Name, key.Default)}, key.Variable);
}

void Stored_Settings::Keep_Manual_Edge(Desktop_Mode::Edge edge, std::int32_t twips) {
  Set(Manual_Variable(edge), Desktop_Mode::Nearest(twips));
  Desktop.Keep_Manual_Edge(edge, twips);
}

void Stored_Settings::Take_Text(const Setting_Key& key, const std::string& text) {
  store_.Save(application, key.Section, key.Name, text);
  std::visit(Reader{Values, text}, key.Variable);
}

void Stored_Settings::Save(const Member& variable) {
  const Setting_Key& key = Key_Of(variable);
  store_.Save(application, key.Section, key.Name, std::visit(Writer{Values}, variable));
}

}  // namespace settings
