#include "InheritanceChecks.h"

#include "CppNames.h"
#include "Operations.h"

#include <algorithm>
#include <map>
#include <set>

namespace Generator {

namespace {

class InheritanceCheck {
public:
    InheritanceCheck(Model& model, const std::vector<const ContainerDeclaration*>& declarations)
        : m_model(model), m_declarations(declarations) {
        for (std::size_t position = 0; position < model.containers.size(); ++position) {
            m_positions[model.containers[position].name] = position;
        }
    }

    void Run() {
        for (std::size_t position = 0; position < m_model.containers.size(); ++position) {
            CheckCycle(position);
        }
        for (std::size_t position = 0; position < m_model.containers.size(); ++position) {
            CheckNames(position);
            CheckKeys(position);
        }
    }

private:
    /// The class and its parents, the class itself first.
    std::vector<const Container*> Line(const std::string& className) const {
        std::vector<const Container*> line;
        for (std::string name = className; !name.empty(); name = line.back()->parent) {
            line.push_back(&m_model.containers[m_positions.at(name)]);
        }
        return line;
    }

    void CheckCycle(std::size_t position) {
        Container& container = m_model.containers[position];
        std::set<std::string> seen = {container.name};
        const Container* next = &container;
        while (!next->parent.empty()) {
            if (!seen.insert(next->parent).second) {
                Refuse(m_declarations[position]->parent->origin,
                       "'" + container.name + "' extends itself by way of '" + container.parent + "'");
            }
            next = &m_model.containers[m_positions.at(next->parent)];
        }
        container.isStructuralConfigLoader = next->isStructuralConfigLoader;
    }

    using Claims = std::map<std::string, std::string>;

    /// Every name that a field brings into its class may be brought by that field alone.
    static void Claim(const Field& field, const std::string& className, const Origin* origin, Claims& claims) {
        std::set<std::string> names;
        for (const auto& operations : {Accessors(field, 0), ListOperations(field, 0)}) {
            for (const Operation& operation : operations) {
                names.insert(operation.name);
            }
        }
        for (const Member& member : Members(field)) {
            names.insert(member.name);
        }
        for (const std::string& name : names) {
            const auto [claim, isNew] = claims.try_emplace(name, "'" + field.name + "' of '" + className + "'");
            if (origin && !isNew) {
                Refuse(*origin, "field '" + field.name + "' brings the name " + name + ", which field " +
                                    claim->second + " has");
            }
            if (origin && IsBaseMember(name)) {
                Refuse(*origin, "field '" + field.name + "' brings the name " + name + ", which the base class has");
            }
        }
    }

    void CheckNames(std::size_t position) const {
        Claims claims;
        const std::vector<const Container*> line = Line(m_model.containers[position].name);
        for (auto parent = line.rbegin(); *parent != line.front(); ++parent) {
            for (const Field& field : (*parent)->fields) {
                Claim(field, (*parent)->name, nullptr, claims);
            }
        }
        const std::vector<Field>& fields = line.front()->fields;
        for (std::size_t row = 0; row < fields.size(); ++row) {
            Claim(fields[row], line.front()->name, &m_declarations[position]->fields[row].name.origin, claims);
        }
    }

    void CheckKeys(std::size_t position) const {
        const std::vector<Field>& fields = m_model.containers[position].fields;
        for (std::size_t row = 0; row < fields.size(); ++row) {
            if (fields[row].form == Form::KeyedList && fields[row].value == Value::Container) {
                CheckKey(fields[row], *m_declarations[position]->fields[row].key);
            }
        }
    }

    void CheckKey(const Field& list, const Written& key) const {
        for (const Container* container : Line(list.className)) {
            for (const Field& field : container->fields) {
                if (field.name != list.key) {
                    continue;
                }
                if (field.form != Form::Attribute || (field.value != Value::String && field.value != Value::Int)) {
                    Refuse(key.origin, "key '" + list.key + "' of '" + list.className +
                                           "', expected an attribute of xs:string or xs:int");
                }
                return;
            }
        }
        Refuse(key.origin, "'" + list.className + "' has no attribute '" + list.key + "' to be the key");
    }

    Model& m_model;
    const std::vector<const ContainerDeclaration*>& m_declarations;
    std::map<std::string, std::size_t> m_positions;
};

} // namespace

void CheckInheritance(Model& model, const std::vector<const ContainerDeclaration*>& declarations) {
    InheritanceCheck(model, declarations).Run();
}

} // namespace Generator
