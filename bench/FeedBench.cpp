// How fast a feed of updates is read and judged.
#include "update/Feed.h"

#include <benchmark/benchmark.h>

#include <QByteArray>

#include <string>

namespace {

using namespace quillon;

constexpr int itemCount = 200;

/// A feed with a page of notes for each version.
QByteArray feed() {
    std::string notes;
    for (int line = 0; line < 30; ++line)
        notes += "<li>Fixed what went wrong when a picture of many colours was sent.</li>\n";
    std::string xml = "<?xml version='1.0' encoding='utf-8'?><rss version='2.0' "
                      "xmlns:quillon='urn:dev.vostrel.quillon:update'><channel>";
    for (int item = 0; item < itemCount; ++item) {
        xml += "<item><quillon:version>1." + std::to_string(item) +
               "</quillon:version><description><![CDATA[<ul>" + notes +
               "</ul>]]></description><enclosure url='https://updates.example/Quillon.tar.xz' "
               "length='12345678' type='application/x-xz' quillon:edSignature='B" +
               std::string(85, 'A') + "=='/></item>";
    }
    return QByteArray::fromStdString(xml + "</channel></rss>");
}

void checkFeed(benchmark::State& state) {
    const QByteArray xml = feed();
    for ([[maybe_unused]] const auto round : state) {
        const auto items = parseFeed(xml);
        const FeedItem* newest =
            items ? newestUpdate(*items, "1.0", "6.1.0", std::string_view{}) : nullptr;
        if (!newest || newest->version != "1.199") {
            state.SkipWithError("the newest item was not found");
            return;
        }
    }
    state.SetBytesProcessed(state.iterations() * xml.size());
}
BENCHMARK(checkFeed)->Name("feed/200 items")->Unit(benchmark::kMillisecond);

} // namespace
