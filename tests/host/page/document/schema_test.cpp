#include "page/document/schema.h"

#include <nlohmann/json.hpp>
#include <set>
#include <valijson/adapters/nlohmann_json_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validator.hpp>

#include "page/document/changes.h"
#include "page/document/document_test.h"
#include "page/document/item_type.h"
#include "page/document/page_text.h"

namespace {

using nlohmann::json;
using valijson::adapters::NlohmannJsonAdapter;

json SchemaInTheTree() {
    return json::parse(host_tests::ContentsOf(MAP_SURROUND_PAGE_SCHEMA));
}

class PageSchema : public host_tests::DocumentTest {
protected:
    PageSchema() : m_json(SchemaInTheTree()) {
        valijson::SchemaParser(valijson::SchemaParser::kDraft7)
            .populateSchema(NlohmannJsonAdapter(m_json), m_schema);
    }

    bool IsValid(const json& page) {
        return m_validator.validate(m_schema, NlohmannJsonAdapter(page), nullptr);
    }

private:
    json m_json;
    valijson::Schema m_schema;
    valijson::Validator m_validator;  // keeps the regular expressions that it has read
};

json PageWith(const json& element) {
    return {{"version", 2}, {"width", 400}, {"height", 300}, {"elements", {element}}};
}

bool IsRead(const json& page) {
    return host_tests::PageErrorOf([&] { host::ReadPage(page.dump(), {}); }).empty();
}

TEST_F(PageSchema, InTheTreeIsTheOneOfTheTables) {
    EXPECT_TRUE(host_tests::ContentsOf(MAP_SURROUND_PAGE_SCHEMA) == host::PageSchema())
        << "map_page --schema > docs/page.schema.json brings it up to date";
}

TEST_F(PageSchema, HasThePropertiesThatAreWritten) {
    const json definitions = SchemaInTheTree().at("definitions");
    for (const host::ItemType& type : host::ItemTypes()) {
        const json item = json::parse(WriteItem(type.make()));
        const auto keys = [](const json& object) {
            std::set<std::string> names;
            for (const auto& entry : object.items()) {
                names.insert(entry.key());
            }
            return names;
        };
        EXPECT_EQ(
            keys(definitions.at(type.name + std::string("-element")).at("properties")),
            keys(item));
        EXPECT_EQ(keys(definitions.at("frame").at("properties")), keys(item.at("frame")));
    }
}

TEST_F(PageSchema, EveryItemThatIsWrittenIsValid) {
    for (const host::ItemType& type : host::ItemTypes()) {
        for (const host_tests::Change& change :
             host_tests::AllChangesOf(type.name, folder.Path())) {
            host::PageItem item = type.make();
            change.make(item);
            EXPECT_TRUE(IsValid(PageWith(json::parse(WriteItem(item)))))
                << type.name << " " << change.property;
        }
    }
}

TEST_F(PageSchema, AgreesWithTheReaderOnWrongValues) {
    const json values[] = {nullptr,
                           true,
                           -1,
                           0.5,
                           1e308,
                           "",
                           "#12345G",
                           "a\nb\u0000c",
                           json::array(),
                           json::array({""}),
                           json::object()};
    for (const host::ItemType& type : host::ItemTypes()) {
        const json item = json::parse(WriteItem(type.make()));
        for (const json& value : values) {
            for (const auto& entry : item.items()) {
                json changed = item;
                changed[entry.key()] = value;
                EXPECT_EQ(IsValid(PageWith(changed)), IsRead(PageWith(changed)))
                    << type.name << " " << entry.key() << " " << value;
            }
            if (&type != &host::ItemTypes().front()) {
                continue;  // the frame has the same properties around each
            }
            for (const auto& entry : item.at("frame").items()) {
                json changed = item;
                changed["frame"][entry.key()] = value;
                EXPECT_EQ(IsValid(PageWith(changed)), IsRead(PageWith(changed)))
                    << type.name << " frame." << entry.key() << " " << value;
            }
        }
        json more = item;
        more["unknown"] = 1;
        EXPECT_FALSE(IsValid(PageWith(more)));
        more = item;
        more.erase("type");
        EXPECT_FALSE(IsValid(PageWith(more)));
    }
}

TEST_F(PageSchema, RefusesWhatIsNoPage) {
    const json page = PageWith(json::parse(R"({"type": "frame"})"));
    EXPECT_TRUE(IsValid(page));
    for (const char* key : {"version", "width", "height", "elements"}) {
        json changed = page;
        changed.erase(key);
        EXPECT_FALSE(IsValid(changed)) << key;
        changed[key] = "x";
        EXPECT_FALSE(IsValid(changed)) << key;
    }
    EXPECT_FALSE(IsValid(json::array()));
    for (const int version : {0, 1, 2, 3, 4}) {
        json changed = page;
        changed["version"] = version;
        EXPECT_EQ(IsValid(changed), IsRead(changed)) << version;
    }
}

}  // namespace
