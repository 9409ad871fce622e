<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>DlgCoordParam</name>
    <message numerus="yes">
        <source>All %n compared point(s) are within the tolerance of %1.</source>
        <translation>
            <numerusform>The compared point is within the tolerance of %1.</numerusform>
            <numerusform>All %n compared points are within the tolerance of %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 compared points are beyond the tolerance of %2.</source>
        <translation>
            <numerusform>%n of %1 compared points is beyond the tolerance of %2.</numerusform>
            <numerusform>%n of %1 compared points are beyond the tolerance of %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>point(s) in the list</source>
        <translation>
            <numerusform>point in the list</numerusform>
            <numerusform>points in the list</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n point(s) that are farthest off, of %1 compared</source>
        <translation>
            <numerusform>The point that is farthest off, of %1 compared</numerusform>
            <numerusform>The %n points that are farthest off, of %1 compared</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Points left out or without a result: the first %n of %1</source>
        <translation>
            <numerusform>Points left out or without a result: the first %n of %1</numerusform>
            <numerusform>Points left out or without a result: the first %n of %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n point(s), %1 with both pairs</source>
        <translation>
            <numerusform>%n point, %1 with both pairs</numerusform>
            <numerusform>%n points, %1 with both pairs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left out</source>
        <translation>
            <numerusform>%n left out</numerusform>
            <numerusform>%n left out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: %n row(s) read.</source>
        <translation>
            <numerusform>%1: %n row read.</numerusform>
            <numerusform>%1: %n rows read.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied.</source>
        <translation>
            <numerusform>%n row copied.</numerusform>
            <numerusform>%n rows copied.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: %n row(s) saved.</source>
        <translation>
            <numerusform>%1: %n row saved.</numerusform>
            <numerusform>%1: %n rows saved.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) deleted; Ctrl+Z undoes that.</source>
        <translation>
            <numerusform>%n row deleted; Ctrl+Z undoes that.</numerusform>
            <numerusform>%n rows deleted; Ctrl+Z undoes that.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n point(s) from the table?</source>
        <translation>
            <numerusform>Remove the point from the table?</numerusform>
            <numerusform>Remove all %n points from the table?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 and %n more</numerusform>
            <numerusform>%1 and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No system gives these coordinates within 50 km of the place. The nearest %n:</source>
        <translation>
            <numerusform>No system gives these coordinates within 50 km of the place. The nearest:</numerusform>
            <numerusform>No system gives these coordinates within 50 km of the place. The nearest %n:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There already: %n of %1 files. Overwrite them?</source>
        <translation>
            <numerusform>There already: %n of %1 files. Overwrite it?</numerusform>
            <numerusform>There already: %n of %1 files. Overwrite them?</numerusform>
        </translation>
    </message>
</context>
</TS>
