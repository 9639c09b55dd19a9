// Any text as a message: it is formatted, or refused by one of the documented exceptions, on a stack of the size
// that threads may have; and text without braces and apostrophes comes back as it is.

#include "fuzz.hpp"

#include <fl/i18n.hpp>

#include <boost/numeric/conversion/cast.hpp>
#include <boost/thread/thread.hpp>

#include <stdexcept>
#include <string>

namespace {

using namespace fl::i18n;

void format(fl::ustring const& message) {
    std::vector<hole_value> const values = {hole_value(fl::ustring(u"text")), hole_value(3LL)};
    for (bool const is_strict : {true, false})
        try {
            fl::ustring const text = MessageCatalogImpl::GetFormattedMessageImpl(message, values, is_strict);
            require(message.find_first_of(u"{}'") != fl::ustring::npos || text == message);
        } catch (MessageCatalog::IncorrectHoleCount const&) {
        } catch (MessageCatalog::MessageFormatIncorrect const&) {
        } catch (CvtInvalidCharacter const&) { // names of holes are ASCII
        } catch (std::invalid_argument const&) {
        } catch (std::out_of_range const&) {
        } catch (boost::numeric::bad_numeric_cast const&) {
        }
}

} // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    fl::ustring const message = utf8_to_ustring(std::string(reinterpret_cast<char const*>(data), size));
    boost::thread::attributes attributes;
    attributes.set_stack_size(1 << 20); // a sanitizer's frames are larger than those of a release build
    boost::thread(attributes, [&] { format(message); }).join();
    return 0;
}
