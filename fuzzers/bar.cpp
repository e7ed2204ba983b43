// The bar file. Its content is restored into a bar, whose order is then written.
#include "Expect.h"
#include "desktop/core/KeptOrderFormat.h"

using namespace Qt::StringLiterals;
using namespace brimshade;
using desktop::KeptOrder;

namespace {

QDate today()
{
    return {2026, 11, 24};
}

void expectToComeBack(const KeptOrder &order)
{
    const QByteArray written = desktop::writeKeptOrder(order);
    const auto again = desktop::readKeptOrder(written, today);
    fuzz::expect(again && desktop::writeKeptOrder(*again) == written, "what was written");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    auto order = desktop::readKeptOrder({reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)}, today);
    if (!order)
        return 0;
    fuzz::expect(order->records().size() <= 2 * KeptOrder::kMost + 1, "no more items than a file may have");
    expectToComeBack(*order);

    KeptOrder bar(today);
    const auto here = bar.arrive({u"org.example"_s, u"a"_s, 0});
    bar.restore(*std::move(order));
    bar.arrive(here);
    bar.leave(here);
    fuzz::expect(bar.records().size() <= KeptOrder::kMost + 1, "no more items than are kept");
    expectToComeBack(bar);
    return 0;
}
