#include <fl/i18n/catalog_xml.hpp>

#include <boost/make_shared.hpp>

namespace fl::i18n {

MessageCatalogFileLoader::~MessageCatalogFileLoader() = default;

XMLCatalogFileLoader::~XMLCatalogFileLoader() = default;

bool XMLCatalogFileLoader::loadFile(filesystem::upath const& path, MessageCatalogDataStore& store) {
    return ExpatLoader(path, boost::make_shared<MessageCatalogExpatEventHandler>(&store)).load_file();
}

} // namespace fl::i18n
