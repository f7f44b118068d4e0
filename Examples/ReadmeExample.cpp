// The program that README.md shows; a test compares the two and runs it beside the example documents.

// README: begin
#include <FrameworkDataContainers/FrameworkDataContainers.h>
#include <iostream>

int main() {
    StateProcessingRootType root(false);
    if (!root.LoadFromFile(nullptr, "StateProcessingRoot.xml", false)) {
        std::cerr << root.GetLastError() << '\n'; // file:line:column: what is wrong
        return 1;
    }
    root.MergeFromFile(nullptr, "StateProcessingRoot.coupons.xml"); // the feature "Coupons"
    StateDefinitionType* coupon = root.GetStateTable()->GetState("Coupon");
    coupon->SetTransient(true);
    std::cout << coupon->GetBaseState() << ", " << coupon->GetDocLength() << " notes\n";
    return root.SaveContents("merged.xml") ? 0 : 1;
}
// README: end
