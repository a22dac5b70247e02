"""Reads the filled outline of a small SVG drawing, ready for a font.

Understood: path, rect, circle, ellipse, polygon, nested groups, transform attributes and both fill rules.
Fonts know the non-zero winding rule only, so every shape's contours are turned until they fill the same area
under it: filled areas run clockwise (y upwards), holes run the other way. Strokes are refused, because a font
has none.
"""

import math
import re
import xml.etree.ElementTree as ElementTree

from fontTools.misc.transform import Identity, Transform
from fontTools.pens.recordingPen import RecordingPen
from fontTools.pens.reverseContourPen import ReverseContourPen
from fontTools.pens.transformPen import TransformPen
from fontTools.svgLib.path import parse_path

# Control points of a quarter of a circle of radius 1 by one cubic curve.
QUARTER = 4 / 3 * (math.sqrt(2) - 1)
# Straight pieces that a curve is cut into where only the area and the nesting of contours are asked.
PIECES_PER_CURVE = 12
# Elements that hold no drawing.
IGNORED = {"title", "desc", "metadata", "defs"}


class SvgError(Exception):
    """The drawing is broken or uses something that a font cannot show."""


def numbers(text):
    return [float(number) for number in re.findall(r"[-+]?(?:\d+\.?\d*|\.\d+)(?:[eE][-+]?\d+)?", text)]


def parse_transform(text):
    """The matrix of a transform attribute; its parts apply from right to left."""
    result = Identity
    for kind, arguments in re.findall(r"(\w+)\s*\(([^)]*)\)", text or ""):
        values = numbers(arguments)
        if kind == "matrix" and len(values) == 6:
            result = result.transform(Transform(*values))
        elif kind == "translate" and len(values) in (1, 2):
            result = result.translate(*values)
        elif kind == "scale" and len(values) in (1, 2):
            result = result.scale(values[0], values[-1])
        elif kind == "rotate" and len(values) == 1:
            result = result.rotate(math.radians(values[0]))
        elif kind == "rotate" and len(values) == 3:
            angle, x, y = values
            result = result.translate(x, y).rotate(math.radians(angle)).translate(-x, -y)
        else:
            raise SvgError(f"transform '{kind}({arguments})' is not understood")
    return result


def length(element, name, default=0.0):
    """A number attribute of an element."""
    try:
        return float(element.get(name, default))
    except ValueError as error:
        raise SvgError(f"attribute {name}='{element.get(name)}' is no plain number") from error


def draw_rounded_box(pen, x, y, width, height, rx, ry):
    """A rectangle with elliptic corners; radii of half the size make an ellipse of it."""
    right, bottom, kx, ky = x + width, y + height, rx * (1 - QUARTER), ry * (1 - QUARTER)
    pen.moveTo((x + rx, y))
    pen.lineTo((right - rx, y))
    pen.curveTo((right - kx, y), (right, y + ky), (right, y + ry))
    pen.lineTo((right, bottom - ry))
    pen.curveTo((right, bottom - ky), (right - kx, bottom), (right - rx, bottom))
    pen.lineTo((x + rx, bottom))
    pen.curveTo((x + kx, bottom), (x, bottom - ky), (x, bottom - ry))
    pen.lineTo((x, y + ry))
    pen.curveTo((x, y + ky), (x + kx, y), (x + rx, y))
    pen.closePath()


def draw_rect(element, pen):
    x, y, width, height = (length(element, name) for name in ("x", "y", "width", "height"))
    rx = length(element, "rx", element.get("ry", 0))
    ry = length(element, "ry", element.get("rx", 0))
    if rx and ry:
        draw_rounded_box(pen, x, y, width, height, min(rx, width / 2), min(ry, height / 2))
    else:
        draw_polygon_points([(x, y), (x + width, y), (x + width, y + height), (x, y + height)], pen)


def draw_ellipse(element, pen):
    rx, ry = length(element, "rx", element.get("r", 0)), length(element, "ry", element.get("r", 0))
    draw_rounded_box(pen, length(element, "cx") - rx, length(element, "cy") - ry, 2 * rx, 2 * ry, rx, ry)


def draw_polygon_points(points, pen):
    pen.moveTo(points[0])
    for point in points[1:]:
        pen.lineTo(point)
    pen.closePath()


def draw_shape(tag, element, pen):
    """Sends one shape to the pen, in the drawing's own coordinates."""
    if tag == "path":
        parse_path(element.get("d", ""), pen)
    elif tag == "rect":
        draw_rect(element, pen)
    elif tag in ("circle", "ellipse"):
        draw_ellipse(element, pen)
    elif tag == "polygon":
        values = numbers(element.get("points", ""))
        if len(values) < 6 or len(values) % 2:
            raise SvgError("a polygon needs three points or more")
        draw_polygon_points(list(zip(values[::2], values[1::2])), pen)
    else:
        raise SvgError(f"element <{tag}> is not understood")


def split_contours(recording):
    """Cuts recorded pen commands into contours. A fill closes what the drawing left open."""
    contours = []
    for command, points in recording:
        if command == "moveTo":
            contours.append([])
        if command == "endPath":
            command = "closePath"
        contours[-1].append((command, points))
    return [contour for contour in contours if abs(area(flatten(contour))) > 1e-6]


def flatten(contour):
    """The contour as a list of points, curves cut into straight pieces."""
    points = []
    for command, arguments in contour:
        if command in ("moveTo", "lineTo"):
            points.append(arguments[0])
        elif command in ("curveTo", "qCurveTo"):
            points.extend(curve_points(points[-1], *arguments))
    return points


def curve_points(*control_points):
    """Points on a quadratic or cubic curve, without its start."""
    degree = len(control_points) - 1
    for step in range(1, PIECES_PER_CURVE + 1):
        t = step / PIECES_PER_CURVE
        weights = [math.comb(degree, i) * (1 - t) ** (degree - i) * t ** i for i in range(degree + 1)]
        yield tuple(sum(weight * point[axis] for weight, point in zip(weights, control_points))
                    for axis in (0, 1))


def area(points):
    """Signed area: negative for a clockwise outline in a system with y upwards."""
    return sum(ax * by - bx * ay for (ax, ay), (bx, by) in zip(points, points[1:] + points[:1])) / 2


def contains(polygon, point):
    """Whether a point lies inside a polygon, by counting the edges to its right."""
    x, y = point
    inside = False
    for (ax, ay), (bx, by) in zip(polygon, polygon[1:] + polygon[:1]):
        if (ay > y) != (by > y) and x < ax + (y - ay) * (bx - ax) / (by - ay):
            inside = not inside
    return inside


def edges_cross(first, second):
    """Whether two straight pieces cross each other in their inner parts."""
    def side(a, b, point):
        return (b[0] - a[0]) * (point[1] - a[1]) - (b[1] - a[1]) * (point[0] - a[0])
    (a, b), (c, d) = first, second
    return side(a, b, c) * side(a, b, d) < -1e-9 and side(c, d, a) * side(c, d, b) < -1e-9


def polygons_cross(first, second):
    edges = list(zip(second, second[1:] + second[:1]))
    return any(edges_cross(edge, other) for edge in zip(first, first[1:] + first[:1]) for other in edges)


def encloses(outer, inner):
    """Whether a polygon holds another one that does not cross it; points on the common edge do not decide."""
    votes = sum(1 if contains(outer, point) else -1 for point in inner)
    return votes > 0 and abs(area(outer)) > abs(area(inner))


def reversed_contour(contour):
    recording = RecordingPen()
    pen = ReverseContourPen(recording)
    for command, points in contour:
        getattr(pen, command)(*points)
    return recording.value


def orient(contours, fill_rule):
    """Turns the contours of one shape so that the non-zero rule fills what its own rule fills.

    A contour with filled ground inside and none outside runs clockwise, the edge of a hole the other way, and
    one with filled ground on both sides is left out.
    """
    polygons = [flatten(contour) for contour in contours]
    pairs = [(i, j) for i in range(len(contours)) for j in range(i)]
    if any(polygons_cross(polygons[i], polygons[j]) for i, j in pairs):
        if fill_rule == "evenodd":
            raise SvgError("contours of an even-odd shape cross each other; it has to be drawn without that")
        turn = sum(map(area, polygons)) > 0
        return [reversed_contour(contour) if turn else contour for contour in contours]

    signs = [1 if area(polygon) > 0 else -1 for polygon in polygons]
    result = []
    for index, contour in enumerate(contours):
        outside = [signs[other] for other in range(len(contours))
                   if other != index and encloses(polygons[other], polygons[index])]
        filled_outside = is_filled(outside, fill_rule)
        filled_inside = is_filled(outside + [signs[index]], fill_rule)
        if filled_inside != filled_outside:
            clockwise = signs[index] < 0
            result.append(contour if clockwise == filled_inside else reversed_contour(contour))
    return result


def is_filled(signs, fill_rule):
    """Whether ground inside contours of these directions is filled."""
    return len(signs) % 2 == 1 if fill_rule == "evenodd" else sum(signs) != 0


def collect(element, transform, fill_rule, contours):
    """Adds the contours of an element and of what it holds, in font units."""
    tag = element.tag.rsplit("}", 1)[-1]
    if tag in IGNORED or element.get("fill") == "none":
        return
    if element.get("stroke", "none") != "none" or element.get("style"):
        raise SvgError(f"<{tag}> has a stroke or a style; only plain filled shapes can become a symbol")
    transform = transform.transform(parse_transform(element.get("transform")))
    fill_rule = element.get("fill-rule", fill_rule)
    if tag in ("svg", "g"):
        for child in element:
            collect(child, transform, fill_rule, contours)
        return
    contours.extend(orient(shape_contours(tag, element, transform), fill_rule))


def shape_contours(tag, element, transform):
    """The contours of one shape in font units, turned as they are drawn."""
    recording = RecordingPen()
    try:
        draw_shape(tag, element, TransformPen(recording, transform))
        return split_contours(recording.value)
    except (IndexError, ValueError, AttributeError, TypeError) as error:
        # What the path reader raises on data that it cannot follow.
        raise SvgError(f"the data of a <{tag}> is broken: {error}") from error


def read_outline(path, view_box, transform):
    """The contours of an SVG file with a square view box of that size: lists of (pen command, points)."""
    try:
        root = ElementTree.parse(path).getroot()
    except ElementTree.ParseError as error:
        raise SvgError(f"no well-formed XML: {error}") from error
    if numbers(root.get("viewBox", "")) != [0, 0, view_box, view_box]:
        raise SvgError(f"its viewBox is '{root.get('viewBox')}', needed is '0 0 {view_box} {view_box}'")
    contours = []
    collect(root, transform, "nonzero", contours)
    if not contours:
        raise SvgError("it draws nothing")
    return contours
