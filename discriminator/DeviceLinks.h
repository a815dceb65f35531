#pragma once

#include "tools/XmlNode.h"

/// The entries of discriminators in the host's tree of device groups.
namespace qv {

/// Appends an entry for the discriminator with the document root `root` to the top level of the
/// tree, whether or not there is one already. Does nothing if `deviceGroups` is null.
void AddDiscriminatorToDeviceGroupsNode(XmlNode* deviceGroups, const XmlNode& root);

/// Removes every entry with this id, of any type, at every level of the tree. Does nothing if
/// `deviceGroups` is null.
void RemoveDiscriminatorFromDeviceGroupsNode(XmlNode* deviceGroups, const QVWideString& id);

}  // namespace qv
