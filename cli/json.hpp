// A flat JSON object, written field by field.
//
//     JsonObject object;
//     object.Add("status", "optimal");
//     object.Add("objective", 12.5);
//     std::cout << object.Text();
#pragma once

#include <string>
#include <string_view>

namespace cli {

class JsonObject {
 public:
  void Add(std::string_view name, std::string_view value);
  void Add(std::string_view name, char const* value) { Add(name, std::string_view(value)); }

  // A number that JSON cannot hold (infinite, not a number) becomes null.
  void Add(std::string_view name, double value);

  std::string Text() const { return "{" + fields_ + "}"; }

 private:
  void BeginField(std::string_view name);

  std::string fields_;
};

}  // namespace cli
