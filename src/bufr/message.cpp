#include "bufr/message.h"

#include <eccodes.h>

#include <array>
#include <memory>
#include <span>
#include <stdexcept>
#include <utility>

namespace bufr {
namespace {

struct DeleteHandle {
  void operator()(codes_handle* handle) const { codes_handle_delete(handle); }
};
using Handle = std::unique_ptr<codes_handle, DeleteHandle>;

constexpr long kShip = 308009;
constexpr long kWigos = 301150;

struct Fixed {
  const char* key;
  long value;
};

// Which centre inserts the message into the exchange is not the ship's to say, and no local tables
// are used. The tables are the oldest that have both templates, so that every receiver knows them.
constexpr Fixed kHeader[] = {
    {"edition", 4},
    {"masterTableNumber", 0},
    {"bufrHeaderCentre", 65535},
    {"bufrHeaderSubCentre", 65535},
    {"updateSequenceNumber", 0},
    {"dataCategory", 1},
    {"internationalDataSubCategory", 0},
    {"dataSubCategory", 255},
    {"masterTablesVersionNumber", 28},
    {"localTablesVersionNumber", 0},
    {"numberOfSubsets", 1},
    {"observedData", 1},
    {"compressedData", 0},
};

void check(int error, std::string_view what) {
  if (error == CODES_SUCCESS) return;
  throw std::runtime_error(std::string("ecCodes cannot encode ")
                               .append(what)
                               .append(": ")
                               .append(codes_get_error_message(error)));
}

class Message {
 public:
  Message() : handle_(codes_bufr_handle_new_from_samples(nullptr, "BUFR4")) {
    if (!handle_)
      throw std::runtime_error("ecCodes does not find its sample BUFR4; are its tables there?");
  }

  void set(const char* key, long value) { check(codes_set_long(handle_.get(), key, value), key); }
  void set(const char* key, double value) {
    check(codes_set_double(handle_.get(), key, value), key);
  }
  void set(const char* key, const std::string& value) {
    std::size_t length = value.size();
    check(codes_set_string(handle_.get(), key, value.c_str(), &length), key);
  }
  void set(const char* key, std::span<const long> values) {
    check(codes_set_long_array(handle_.get(), key, values.data(), values.size()), key);
  }

  /// The whole message, from "BUFR" to "7777".
  [[nodiscard]] std::string packed() {
    set("pack", 1L);
    const void* bytes = nullptr;
    std::size_t size = 0;
    check(codes_get_message(handle_.get(), &bytes, &size), "the message");
    return {static_cast<const char*>(bytes), size};
  }

 private:
  Handle handle_;
};

void set_header(Message& message, const Contents& contents) {
  for (const Fixed& each : kHeader) message.set(each.key, each.value);
  message.set("typicalYear", static_cast<long>(contents.year));
  message.set("typicalMonth", static_cast<long>(contents.month));
  message.set("typicalDay", static_cast<long>(contents.day));
  message.set("typicalHour", static_cast<long>(contents.hour));
  message.set("typicalMinute", 0L);
  message.set("typicalSecond", 0L);
}

void set_template(Message& message, bool wigos) {
  // No cloud layers: the report's groups of section 3 are none that a ship of this program sends.
  constexpr std::array<long, 1> kLayers{0};
  message.set("inputDelayedDescriptorReplicationFactor", kLayers);
  constexpr std::array<long, 2> kDescriptors{kWigos, kShip};
  message.set("unexpandedDescriptors", wigos ? std::span<const long>(kDescriptors)
                                             : std::span<const long>(kDescriptors).last(1));
}

void set_wigos(Message& message, const WigosIdentifier& wigos) {
  message.set("wigosIdentifierSeries", static_cast<long>(wigos.series));
  message.set("wigosIssuerOfIdentifier", static_cast<long>(wigos.issuer));
  message.set("wigosIssueNumber", static_cast<long>(wigos.issue));
  message.set("wigosLocalIdentifierCharacter", wigos.local);
}

}  // namespace

std::string encode(const Contents& contents, const std::optional<WigosIdentifier>& wigos) {
  Message message;
  set_header(message, contents);
  set_template(message, wigos.has_value());
  // A new message has every element missing.
  if (wigos) set_wigos(message, *wigos);
  if (!contents.call_sign.empty())
    message.set("#1#shipOrMobileLandStationIdentifier", contents.call_sign);
  for (const ElementValue& each : contents.values)
    message.set(std::string(each.element->key).c_str(), each.value);
  return message.packed();
}

}  // namespace bufr
