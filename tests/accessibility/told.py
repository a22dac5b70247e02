"""What a program tells assistive technology: its tree, read as a screen reader reads it, and what is wrong with a node."""

import dataclasses

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # pylint: disable=wrong-import-position

# These hold others and need no name of their own; all else does.
HOLDERS = {"menu bar", "filler", "panel"}
STATES_OF_ALL = {"visible", "showing"}
# Roles that newer versions of the interface name otherwise (trixie has 2.56), by the names that bookworm has.
NEWER_NAMES = {"button": "push button"}


@dataclasses.dataclass
class Told:
    """A node as it was told at one moment."""

    source: Atspi.Accessible
    role: str
    name: str
    description: str
    states: set
    actions: list
    rect: tuple  # left, top, right, bottom on the screen; None where it has none
    parent: "Told"
    children: list = dataclasses.field(default_factory=list)

    def __str__(self):
        return f"{self.role} '{self.name}' ({self.description}) [{' '.join(sorted(self.states))}] {self.rect}"

    def all(self):
        """This node and all below it, from the first to the last."""
        yield self
        for child in self.children:
            yield from child.all()

    def find(self, role, name=None):
        """The nodes of that role and name below this one."""
        return [node for node in self.all() if node.role == role and name in (None, node.name)]

    def do(self, action):
        """An action by the name that is told for it: "Press", "SetFocus"."""
        self.source.do_action(self.actions.index(action))

    def lines(self, depth=0):
        """The tree as text, for whoever reads of a failure."""
        yield "  " * depth + str(self)
        for child in self.children:
            yield from child.lines(depth + 1)


def read(source, parent=None):
    """The tree below a node, or None where the node goes while it is read."""
    try:
        interfaces = source.get_interfaces()
        rect = None
        if "Component" in interfaces:
            extents = source.get_extents(Atspi.CoordType.SCREEN)
            rect = (extents.x, extents.y, extents.x + extents.width, extents.y + extents.height)
        actions = []
        if "Action" in interfaces:
            actions = [Atspi.Action.get_action_name(source, index)
                       for index in range(Atspi.Action.get_n_actions(source))]
        role = source.get_role_name()
        node = Told(source, NEWER_NAMES.get(role, role), source.get_name() or "", source.get_description() or "",
                    {state.value_nick for state in source.get_state_set().get_states()}, actions, rect, parent)
        for index in range(source.get_child_count()):
            child = source.get_child_at_index(index)
            told = read(child, node) if child else None
            if told:
                node.children.append(told)
        return node
    except GLib.Error:
        return None


def applications():
    """The programs on the accessibility bus."""
    desktop = Atspi.get_desktop(0)
    desktop.set_cache_mask(Atspi.Cache.NONE)
    found = [desktop.get_child_at_index(index) for index in range(desktop.get_child_count())]
    for application in filter(None, found):
        application.set_cache_mask(Atspi.Cache.NONE)  # what is asked is asked of the program itself, each time
    return [application for application in found if application]


def meets(inner, outer):
    """Whether a part of the inner rectangle lies in the outer one; the parts of an empty one lie nowhere."""
    left, top = max(inner[0], outer[0]), max(inner[1], outer[1])
    return left < min(inner[2], outer[2]) and top < min(inner[3], outer[3])


def faults_of(node):
    """What is wrong with one node, in words."""
    if not node.name.strip() and (node.role not in HOLDERS or "focusable" in node.states):
        yield "has no name"
    if node.role in ("unknown", "invalid"):
        yield "has no role"
    if not STATES_OF_ALL <= node.states:
        yield "is not on view"
    if not node.rect or node.rect[0] >= node.rect[2] or node.rect[1] >= node.rect[3]:
        yield "has no extent"
    elif node.parent and node.parent.rect and node.parent.role in ("frame", "list") and \
            not meets(node.rect, node.parent.rect):
        yield "lies outside of what shows it"
    if node.role == "radio button" and (node.parent.role != "panel" or not node.parent.name):
        yield "is a choice, but stands in no group with a name"
    if node.role == "image" and any("focusable" in part.states for part in node.all()):
        yield "is a picture that takes the focus"
    if "Press" in node.actions and "enabled" not in node.states:
        yield "is disabled, and can be pressed"


def faults(window):
    """What is wrong with a window, with the node that it is wrong of; an empty list where all is well."""
    found = [f"{fault}: {node}" for node in window.all() for fault in faults_of(node)]
    for group in window.find("panel"):
        choices = [child for child in group.children if child.role == "radio button"]
        if choices and sum("checked" in choice.states for choice in choices) != 1:
            found.append(f"does not say which one choice is taken: {group}")
    for rows in window.find("list"):
        places = [row.description.rsplit(", ", 1)[-1].split(" of ")
                  for row in rows.children if row.role == "list item"]
        if any(len(place) != 2 or not all(part.isdigit() for part in place) for place in places):
            found.append(f"has rows that do not tell their place: {rows}")
    return found
