// A whole document read by the records: orders one behind the other, each by
// Order::Read over one Archive on the fuzzer's bytes, as long as they read.
// What was read writes itself again.
#include "framework/archive.h"
#include "fuzz/record_read.h"
#include "records/order/order.h"

#include <sstream>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace ItUnitechnik;
    std::wstringbuf input(Fuzzing::TextOf(data, size));
    Archive in(&input);
    std::vector<Order> orders;
    for (;;) {
        Order order;
        if (!order.Read(in)) {
            break;
        }
        orders.push_back(order);
    }
    std::wstringbuf output;
    Archive out(&output);
    for (Order& order : orders) {
        order.Write(out);
    }
    return 0;
}
