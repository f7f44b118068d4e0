#include "Framework/XMLSupport/ScalarWriter.h"

#include <xercesc/dom/DOMException.hpp>

#include "Framework/LoadLimits.h"
#include "Framework/SupportFunc.h"
#include "Framework/XMLSupport/FaultPoint.h"
#include "Framework/XMLSupport/TreeReading.h"
#include "Framework/XMLSupport/WrapperState.h"
#include "Framework/XMLSupport/XmlEscapes.h"

namespace Framework {

namespace {

zelString Canonical(ValueKind kind, std::string_view text) {
    const zelString given(text);
    switch (kind) {
    case ValueKind::Bool:
        return SupportFunc::GetStrValue(SupportFunc::GetBoolValue(given));
    case ValueKind::Int:
        return SupportFunc::GetStrValue(static_cast<long>(SupportFunc::GetIntValue(given)));
    case ValueKind::Double:
        return SupportFunc::GetStrValue(SupportFunc::GetDoubleValue(given));
    case ValueKind::Text:
        break;
    }
    return given;
}

void CheckText(WrapperState& wrapper, NodeRef where, const std::string& below, std::string_view text) {
    if (const std::string forbidden = DescribeForbidden(text); !forbidden.empty()) {
        throw EditError("cannot write " + wrapper.PathOf(where) + below + ": " + forbidden + " is not allowed in XML");
    }
}

/// What is added must load again under the limits that stand.
void CheckLimits(WrapperState& wrapper, NodeRef parent, bool isAttribute, const std::string& below) {
    const XmlTree& tree = *wrapper.Tree();
    const LoadLimits limits = LoadLimits::Current();
    std::size_t count = 0;
    if (isAttribute) {
        for (NodeRef each = tree.FirstAttribute(parent); each != NodeRef::None; each = tree.NextSibling(each)) {
            ++count;
        }
    } else {
        for (NodeRef each = parent; tree.Kind(each) == NodeKind::Element; each = tree.Parent(each)) {
            ++count;
        }
    }
    if (count >= (isAttribute ? limits.attributesPerElement : limits.depth)) {
        throw EditError("cannot write " + wrapper.PathOf(parent) + below +
                        ": the document could not be loaded again, " +
                        (isAttribute ? "there are too many attributes" : "elements would be nested too deeply"));
    }
}

void Add(WrapperState& wrapper, NodeRef parent, const FieldHint& hint, std::string_view text,
         const std::string& below) {
    const XmlTree& tree = *wrapper.Tree();
    CheckText(wrapper, parent, below, text);
    CheckLimits(wrapper, parent, hint.isAttribute, below);
    if (hint.isAttribute) {
        wrapper.Edit().AddAttribute(parent, hint.name, text);
        wrapper.ForgetAttribute(parent, hint.name);
    } else {
        const ElementPlace place = PlaceOfField(tree, parent, hint.order, hint.position);
        wrapper.Edit().AddElement(place, hint.name, text, hint.form);
        wrapper.ForgetIndex();
    }
}

bool Reads(const XmlTree& tree, NodeRef node, TextForm form, ValueKind kind, std::string_view text) {
    std::string room;
    const std::string_view present = form == TextForm::CData && tree.Kind(node) == NodeKind::Element
                                         ? std::string_view(room = CDataOf(tree, node))
                                         : TextIn(tree, node, room);
    return ReadsAlike(kind, present, text);
}

void Change(WrapperState& wrapper, NodeRef node, std::string_view text, TextForm form, ValueKind kind) {
    CheckText(wrapper, node, "", text);
    TreeEditor& editor = wrapper.Edit();
    std::string room;
    const std::optional<std::string_view> parsed = editor.Parsed(node, form, room);
    const bool isAttribute = wrapper.Tree()->Kind(node) == NodeKind::Attribute;
    if (parsed.has_value() && ReadsAlike(kind, *parsed, text)) {
        editor.Restore(node);
    } else if (isAttribute) {
        editor.SetValue(node, text);
    } else {
        editor.SetText(node, text, form);
    }
    if (isAttribute) {
        const XmlTree& tree = *wrapper.Tree();
        wrapper.ForgetAttribute(tree.Parent(node), tree.Name(node));
    }
}

/// A host may have made nodes of its DOM read only; the DOM then says no by an exception of its own kind.
template <typename Step> void TryToEdit(WrapperState& wrapper, NodeRef node, std::string_view below, Step step) {
    try {
        step();
    } catch (const xercesc::DOMException&) {
        throw EditError("cannot write " + wrapper.PathOf(node) + std::string(below) + ": the DOM refuses it");
    }
}

} // namespace

bool ReadsAlike(ValueKind kind, std::string_view left, std::string_view right) {
    return left == right || (kind != ValueKind::Text && Canonical(kind, left) == Canonical(kind, right));
}

void WriteNode(WrapperState& wrapper, NodeRef node, std::string_view text, TextForm form, ValueKind kind) {
    FaultPoint("WriteNode");
    const XmlTree& tree = *wrapper.Tree();
    const NodeKind nodeKind = tree.Kind(node);
    if (nodeKind != NodeKind::Element && nodeKind != NodeKind::Attribute) {
        throw EditError("cannot write " + wrapper.PathOf(node) + ": only elements and attributes have a value");
    }
    if (!Reads(tree, node, form, kind, text)) {
        TryToEdit(wrapper, node, "", [&] { Change(wrapper, node, text, form, kind); });
    }
}

void WriteField(WrapperState& wrapper, NodeRef parent, NodeRef present, const FieldHint& hint, std::string_view text) {
    FaultPoint("WriteField");
    const bool needsNode = !ReadsAlike(hint.kind, hint.absent, text);
    if (present == NodeRef::None) {
        if (needsNode) {
            const std::string below = (hint.isAttribute ? "/@" : "/") + std::string(hint.name);
            TryToEdit(wrapper, parent, below, [&] { Add(wrapper, parent, hint, text, below); });
        }
        return;
    }
    if (Reads(*wrapper.Tree(), present, hint.form, hint.kind, text)) {
        return;
    }
    if (!needsNode) {
        if (TreeEditor& editor = wrapper.Edit(); editor.IsAdded(present)) {
            editor.Remove(present);
            wrapper.ForgetIndex();
            return;
        }
    }
    TryToEdit(wrapper, present, "", [&] { Change(wrapper, present, text, hint.form, hint.kind); });
}

} // namespace Framework
