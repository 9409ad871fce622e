<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>DlgCoordParam</name>
    <message>
        <source>Origin</source>
        <translation>Ursprung</translation>
    </message>
    <message>
        <source>Standard parallels</source>
        <translation>Standardparallelen</translation>
    </message>
    <message>
        <source>Checked point</source>
        <translation>Geprüfter Punkt</translation>
    </message>
    <message>
        <source>Designed area</source>
        <translation>Entwurfsgebiet</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Gebiet</translation>
    </message>
    <message>
        <source>What the map is around.</source>
        <translation>Was in der Mitte der Karte liegt.</translation>
    </message>
    <message>
        <source>Width of the area</source>
        <translation>Seitenlänge des Gebiets</translation>
    </message>
    <message>
        <source>Side of the square area; the map shows all of it.</source>
        <translation>Seite des quadratischen Gebiets; die Karte zeigt es ganz.</translation>
    </message>
    <message>
        <source>Central meridian</source>
        <translation>Mittelmeridian</translation>
    </message>
    <message>
        <source>Standard parallel</source>
        <translation>Standardparallele</translation>
    </message>
    <message>
        <source>Outline of the area</source>
        <translation>Umriss des Gebiets</translation>
    </message>
    <message>
        <source>Easting, %1</source>
        <translation>Ostwert, %1</translation>
    </message>
    <message>
        <source>Northing, %1</source>
        <translation>Nordwert, %1</translation>
    </message>
    <message>
        <source>From catalogue</source>
        <translation>Aus Katalog</translation>
    </message>
    <message>
        <source>Words of the group or of the name</source>
        <translation>Wörter der Gruppe oder des Namens</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Systems</source>
        <translation>Systeme</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <translation>%1, in %2</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Ellipsoidal height</source>
        <translation>Ellipsoidische Höhe</translation>
    </message>
    <message>
        <source>along the meridian %1
along the parallel %2</source>
        <translation>entlang des Meridians %1
entlang des Parallelkreises %2</translation>
    </message>
    <message>
        <source>Copy as text</source>
        <translation>Als Text kopieren</translation>
    </message>
    <message>
        <source>The system&apos;s own</source>
        <translation>Das des Systems</translation>
    </message>
    <message>
        <source>WGS 84</source>
        <translation>WGS 84</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Easting</source>
        <translation>Ostwert</translation>
    </message>
    <message>
        <source>Northing</source>
        <translation>Nordwert</translation>
    </message>
    <message>
        <source>Grid scale factor</source>
        <translation>Projektionsmaßstab</translation>
    </message>
    <message>
        <source>Convergence</source>
        <translation>Meridiankonvergenz</translation>
    </message>
    <message>
        <source>Combined factor</source>
        <translation>Kombinierter Faktor</translation>
    </message>
    <message>
        <source>Closing error</source>
        <translation>Schlussfehler</translation>
    </message>
    <message>
        <source>A true azimuth is the grid bearing plus the convergence. Where the projection is not conformal, this holds along the meridian only.</source>
        <translation>Das wahre Azimut ist der Richtungswinkel im Gitter plus die Meridiankonvergenz. Wo die Projektion nicht konform ist, gilt das nur entlang des Meridians.</translation>
    </message>
    <message>
        <source>Grid scale factor times R / (R + height): from a distance at that height to the grid.</source>
        <translation>Projektionsmaßstab mal R / (R + Höhe): von einer Strecke in dieser Höhe ins Gitter.</translation>
    </message>
    <message>
        <source>How far the point is off when it is computed there and back: through the projection, and through the datum shift.</source>
        <translation>Um wie viel der Punkt nach Hin- und Rückrechnung abweicht: durch die Projektion und durch den Datumsübergang.</translation>
    </message>
    <message>
        <source>the same: the system&apos;s datum is WGS 84</source>
        <translation>gleich: das Datum des Systems ist WGS 84</translation>
    </message>
    <message>
        <source>unknown: the system defines no datum shift</source>
        <translation>unbekannt: das System definiert keinen Datumsübergang</translation>
    </message>
    <message>
        <source>The registry&apos;s shifts move this point by %1 m.</source>
        <translation>Die Datumsübergänge des Registers versetzen diesen Punkt um %1 m.</translation>
    </message>
    <message>
        <source>The registry&apos;s shifts move this point by %1 to %2 m.</source>
        <translation>Die Datumsübergänge des Registers versetzen diesen Punkt um %1 bis %2 m.</translation>
    </message>
    <message>
        <source>On WGS 84</source>
        <translation>In WGS 84</translation>
    </message>
    <message>
        <source>On the own datum</source>
        <translation>Im eigenen Datum</translation>
    </message>
    <message>
        <source>The projection gives no result for this point.</source>
        <translation>Die Projektion liefert für diesen Punkt kein Ergebnis.</translation>
    </message>
    <message>
        <source>along the meridian %1
in other directions off by up to %2&quot;</source>
        <translation>entlang des Meridians %1
in anderen Richtungen bis zu %2&quot; Abweichung</translation>
    </message>
    <message>
        <source>%1, datum shift %2</source>
        <translation>%1, Datumsübergang %2</translation>
    </message>
    <message>
        <source>The projection is not reliable here.</source>
        <translation>Die Projektion ist hier nicht zuverlässig.</translation>
    </message>
    <message>
        <source>The datum shift is not reliable here.</source>
        <translation>Der Datumsübergang ist hier nicht zuverlässig.</translation>
    </message>
    <message>
        <source>Lengths of points in international feet (ft, 0.3048 m); the system&apos;s parameters in metres.</source>
        <translation>Längenmaße der Punkte in internationalen Fuß (ft, 0.3048 m); die Parameter des Systems in Metern.</translation>
    </message>
    <message>
        <source>Lengths of points in US survey feet (ftUS, 1200/3937 m); the system&apos;s parameters in metres.</source>
        <translation>Längenmaße der Punkte in US-Vermessungsfuß (ftUS, 1200/3937 m); die Parameter des Systems in Metern.</translation>
    </message>
    <message>
        <source>Lengths in metres (m).</source>
        <translation>Längenmaße in Metern (m).</translation>
    </message>
    <message>
        <source>Check of a coordinate system against control points</source>
        <translation>Prüfung eines Koordinatensystems an Passpunkten</translation>
    </message>
    <message>
        <source>No point in use has both pairs of coordinates: nothing could be compared.</source>
        <translation>Kein verwendeter Punkt hat beide Koordinatenpaare: nichts zu vergleichen.</translation>
    </message>
    <message numerus="yes">
        <source>All %n compared point(s) are within the tolerance of %1.</source>
        <translation>
            <numerusform>Der verglichene Punkt liegt innerhalb der Toleranz von %1.</numerusform>
            <numerusform>Alle %n verglichenen Punkte liegen innerhalb der Toleranz von %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 compared points are beyond the tolerance of %2.</source>
        <translation>
            <numerusform>%n von %1 verglichenen Punkten liegt außerhalb der Toleranz von %2.</numerusform>
            <numerusform>%n von %1 verglichenen Punkten liegen außerhalb der Toleranz von %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Computed minus given</source>
        <translation>Berechnet minus gegeben</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>RMS</source>
        <translation>RMS</translation>
    </message>
    <message>
        <source>largest</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Abstand</translation>
    </message>
    <message numerus="yes">
        <source>point(s) in the list</source>
        <translation>
            <numerusform>Punkt in der Liste</numerusform>
            <numerusform>Punkte in der Liste</numerusform>
        </translation>
    </message>
    <message>
        <source>compared: in use, with both pairs of coordinates</source>
        <translation>verglichen: verwendet und mit beiden Koordinatenpaaren</translation>
    </message>
    <message>
        <source>of these beyond the tolerance, the farthest first</source>
        <translation>davon außerhalb der Toleranz, die größte Abweichung zuerst</translation>
    </message>
    <message>
        <source>with both pairs left out of the figures by hand</source>
        <translation>mit beiden Paaren, von Hand aus der Statistik ausgeschlossen</translation>
    </message>
    <message>
        <source>with one pair only, the other computed</source>
        <translation>mit nur einem Paar, das andere berechnet</translation>
    </message>
    <message>
        <source>not computed, as that was cancelled</source>
        <translation>nicht berechnet, da abgebrochen</translation>
    </message>
    <message>
        <source>without a result; the list says why</source>
        <translation>ohne Ergebnis; die Liste sagt, warum</translation>
    </message>
    <message>
        <source>with a name that another has</source>
        <translation>mit einem mehrfach vergebenen Namen</translation>
    </message>
    <message>
        <source>Latitudes, longitudes and heights of the points are on the system&apos;s own datum.</source>
        <translation>Breiten, Längen und Höhen der Punkte beziehen sich auf das eigene Datum des Systems.</translation>
    </message>
    <message>
        <source>Latitudes, longitudes and heights of the points are on WGS 84, and brought to the system&apos;s datum by its shift.</source>
        <translation>Breiten, Längen und Höhen der Punkte beziehen sich auf WGS 84 und sind durch den Datumsübergang des Systems in dessen Datum überführt.</translation>
    </message>
    <message>
        <source>No. %1</source>
        <translation>Nr. %1</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Points and residuals</source>
        <translation>Punkte und Restklaffungen</translation>
    </message>
    <message>
        <source>Vectors lead from the given place to the computed one, longer than life by the factor beside the scale bar. Red: beyond the tolerance. Grey: left out.</source>
        <translation>Die Vektoren führen vom gegebenen zum berechneten Ort, vergrößert um den Faktor neben dem Maßstabsbalken. Rot: außerhalb der Toleranz. Grau: ausgeschlossen.</translation>
    </message>
    <message>
        <source>Linear distortion</source>
        <translation>Streckenverzerrung</translation>
    </message>
    <message>
        <source>On the map: %1 to %2 ppm (mm in a kilometre). Red: longer in the grid than on the ground; blue: shorter. Black rectangle: the area of the points.</source>
        <translation>Auf der Karte: %1 bis %2 ppm (mm je Kilometer). Rot: im Gitter länger als am Boden; blau: kürzer. Schwarzes Rechteck: das Gebiet der Punkte.</translation>
    </message>
    <message>
        <source>At the points&apos; mean height of %1 above the ellipsoid.</source>
        <translation>In der mittleren Höhe der Punkte, %1 über dem Ellipsoid.</translation>
    </message>
    <message>
        <source>At the height 0, as the points have none: what the projection alone does.</source>
        <translation>In der Höhe 0, da die Punkte keine haben: was die Projektion allein bewirkt.</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>ΔE, ΔN: computed from latitude and longitude, minus given. *: beyond the tolerance. Slanted: computed from the other pair.</source>
        <translation>ΔE, ΔN: berechnet aus Breite und Länge, minus gegeben. *: außerhalb der Toleranz. Kursiv: aus dem anderen Paar berechnet.</translation>
    </message>
    <message>
        <source>The list has %1 points, too many for a report; here are those that matter most. &quot;Save...&quot; writes all of them as CSV.</source>
        <translation>Die Liste hat %1 Punkte, zu viele für einen Bericht; hier stehen die wichtigsten. „Speichern...“ schreibt alle als CSV.</translation>
    </message>
    <message numerus="yes">
        <source>The %n point(s) that are farthest off, of %1 compared</source>
        <translation>
            <numerusform>Der am weitesten abweichende Punkt von %1 verglichenen</numerusform>
            <numerusform>Die %n am weitesten abweichenden Punkte von %1 verglichenen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Points left out or without a result: the first %n of %1</source>
        <translation>
            <numerusform>Ausgeschlossene Punkte und Punkte ohne Ergebnis: der erste von %1</numerusform>
            <numerusform>Ausgeschlossene Punkte und Punkte ohne Ergebnis: die ersten %n von %1</numerusform>
        </translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Left out of the figures.</source>
        <translation>Aus der Statistik ausgeschlossen.</translation>
    </message>
    <message>
        <source>From catalogue...</source>
        <translation>Aus Katalog...</translation>
    </message>
    <message>
        <source>From registry...</source>
        <translation>Aus Register...</translation>
    </message>
    <message>
        <source>With datum shifts</source>
        <translation>Mit Datumsübergängen</translation>
    </message>
    <message>
        <source>Apart from the mean</source>
        <translation>Ohne das Mittel</translation>
    </message>
    <message>
        <source>Picture of the difference</source>
        <translation>Bild der Differenz</translation>
    </message>
    <message>
        <source>The same place for both systems: through WGS 84 with both datum shifts, or else the same latitude and longitude.</source>
        <translation>Derselbe Ort für beide Systeme: über WGS 84 mit beiden Datumsübergängen, sonst gleiche Breite und Länge.</translation>
    </message>
    <message>
        <source>The map shows what is left of the difference without its mean over the area, as after another false easting and northing.</source>
        <translation>Die Karte zeigt, was von der Differenz ohne ihr Mittel über das Gebiet bleibt, wie nach anderen Additionskonstanten.</translation>
    </message>
    <message>
        <source>The difference is easting and northing of the shown system minus those of the other one, at the same place on the ground.</source>
        <translation>Die Differenz ist Ost- und Nordwert des gezeigten Systems minus die des anderen, am selben Ort im Gelände.</translation>
    </message>
    <message>
        <source>Choose a system to compare with</source>
        <translation>Ein System zum Vergleichen wählen</translation>
    </message>
    <message>
        <source>ΔE</source>
        <translation>ΔE</translation>
    </message>
    <message>
        <source>ΔN</source>
        <translation>ΔN</translation>
    </message>
    <message>
        <source>At the mouse</source>
        <translation>Am Mauszeiger</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Apart from it</source>
        <translation>Ohne dieses</translation>
    </message>
    <message>
        <source>The point of the page &quot;Point&quot;.</source>
        <translation>Der Punkt der Seite „Punkt“.</translation>
    </message>
    <message>
        <source>Over the black square.</source>
        <translation>Über das schwarze Quadrat.</translation>
    </message>
    <message>
        <source>What is left of the difference without its mean is no larger in the black square.</source>
        <translation>Was von der Differenz ohne ihr Mittel bleibt, ist im schwarzen Quadrat nicht größer.</translation>
    </message>
    <message>
        <source>minus %1</source>
        <translation>minus %1</translation>
    </message>
    <message>
        <source>Easting and northing of the shown system minus those of %1, as it was when it was chosen, at the same place on the ground.</source>
        <translation>Ost- und Nordwert des gezeigten Systems minus die von %1, wie es bei der Wahl war, am selben Ort im Gelände.</translation>
    </message>
    <message>
        <source>One of the projections gives no result in this area.</source>
        <translation>Eine der Projektionen liefert in diesem Gebiet kein Ergebnis.</translation>
    </message>
    <message>
        <source>Neither system defines a datum shift: both count as on WGS 84.</source>
        <translation>Keines der Systeme definiert einen Datumsübergang: beide gelten als in WGS 84.</translation>
    </message>
    <message>
        <source>No datum shift is defined by %1: it counts as on WGS 84.</source>
        <translation>%1 hat keinen Datumsübergang: es gilt als in WGS 84.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>Take over</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>For this area</source>
        <translation>Für dieses Gebiet</translation>
    </message>
    <message>
        <source>For the point</source>
        <translation>Für den Punkt</translation>
    </message>
    <message>
        <source>Least distortion</source>
        <translation>Kleinste Verzerrung</translation>
    </message>
    <message>
        <source>Where the largest distortion at that height is to be smallest: in the square on the map, or at the checked point.</source>
        <translation>Wo die größte Verzerrung in dieser Höhe am kleinsten sein soll: im Quadrat auf der Karte oder am geprüften Punkt.</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Entwurf</translation>
    </message>
    <message>
        <source>Move the meridian</source>
        <translation>Meridian verschieben</translation>
    </message>
    <message>
        <source>Move the parallel</source>
        <translation>Parallele verschieben</translation>
    </message>
    <message>
        <source>There is nothing to propose here.</source>
        <translation>Hier gibt es nichts vorzuschlagen.</translation>
    </message>
    <message>
        <source>This system has no scale factor to choose.</source>
        <translation>Dieses System hat keinen wählbaren Maßstabsfaktor.</translation>
    </message>
    <message>
        <source>The system is as good as it can be here.</source>
        <translation>Das System ist hier so gut wie möglich.</translation>
    </message>
    <message>
        <source>Distortion in ppm: %1 → %2</source>
        <translation>Verzerrung in ppm: %1 → %2</translation>
    </message>
    <message>
        <source>Picture of the linear distortion</source>
        <translation>Bild der Streckenverzerrung</translation>
    </message>
    <message>
        <source>Mean ellipsoidal height of the ground; 0 shows the grid&apos;s own distortion.</source>
        <translation>Mittlere ellipsoidische Geländehöhe; 0 zeigt die Verzerrung durch die Projektion allein.</translation>
    </message>
    <message>
        <source>ppm</source>
        <translation>ppm</translation>
    </message>
    <message>
        <source>%1 ppm   %2, %3
E %4 %6  N %5 %6</source>
        <translation>%1 ppm   %2, %3
E %4 %6  N %5 %6</translation>
    </message>
    <message>
        <source>Point at the map for the distortion there.</source>
        <translation>Auf die Karte zeigen, um die Verzerrung dort zu sehen.</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassung</translation>
    </message>
    <message>
        <source>What would meet the points best; what is not ticked is held.</source>
        <translation>Was am besten zu den Punkten passen würde; was nicht angehakt ist, bleibt fest.</translation>
    </message>
    <message>
        <source>before</source>
        <translation>vorher</translation>
    </message>
    <message>
        <source>after ± standard deviation</source>
        <translation>nachher ± Standardabweichung</translation>
    </message>
    <message>
        <source>Scale factor</source>
        <translation>Maßstabsfaktor</translation>
    </message>
    <message>
        <source>False easting</source>
        <translation>Additionskonstante Ost</translation>
    </message>
    <message>
        <source>False northing</source>
        <translation>Additionskonstante Nord</translation>
    </message>
    <message>
        <source>RMS, largest</source>
        <translation>RMS, Maximum</translation>
    </message>
    <message>
        <source>Misfit before</source>
        <translation>Abweichung vorher</translation>
    </message>
    <message>
        <source>Misfit after</source>
        <translation>Abweichung nachher</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Remainder</source>
        <translation>Rest</translation>
    </message>
    <message>
        <source>Diagnosis</source>
        <translation>Diagnose</translation>
    </message>
    <message>
        <source>%1 after</source>
        <translation>%1 nachher</translation>
    </message>
    <message>
        <source>Against the ground remain a rotation of %1 ± %2%3 and a scale of %4 ± %5 ppm.</source>
        <translation>Gegenüber dem Gelände bleiben eine Rotation von %1 ± %2%3 und ein Maßstab von %4 ± %5 ppm.</translation>
    </message>
    <message>
        <source>(not used)</source>
        <translation>(ungenutzt)</translation>
    </message>
    <message>
        <source>Decimal comma</source>
        <translation>Dezimalkomma</translation>
    </message>
    <message>
        <source>First line is a heading</source>
        <translation>Erste Zeile ist Kopfzeile</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulator</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Semikolon</translation>
    </message>
    <message>
        <source>Blanks</source>
        <translation>Leerzeichen</translation>
    </message>
    <message>
        <source>Columns parted by</source>
        <translation>Spalten getrennt durch</translation>
    </message>
    <message>
        <source>metres</source>
        <translation>Meter</translation>
    </message>
    <message>
        <source>international feet</source>
        <translation>internationale Fuß</translation>
    </message>
    <message>
        <source>US survey feet</source>
        <translation>US-Vermessungsfuß</translation>
    </message>
    <message>
        <source>Lengths in</source>
        <translation>Längenmaße in</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>Columns of one kind belong together: degrees, minutes and seconds.</source>
        <translation>Spalten einer Art gehören zusammen: Grad, Minuten und Sekunden.</translation>
    </message>
    <message>
        <source>Say which columns are latitude and longitude, or easting and northing.</source>
        <translation>Angeben, welche Spalten Breite und Länge oder Ost- und Nordwert sind.</translation>
    </message>
    <message numerus="yes">
        <source>%n point(s), %1 with both pairs</source>
        <translation>
            <numerusform>%n Punkt, %1 mit beiden Paaren</numerusform>
            <numerusform>%n Punkte, %1 mit beiden Paaren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left out</source>
        <translation>
            <numerusform>%n ausgeschlossen</numerusform>
            <numerusform>%n ausgeschlossen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 beyond the tolerance</source>
        <translation>%1 außerhalb der Toleranz</translation>
    </message>
    <message>
        <source>%1 without a result</source>
        <translation>%1 ohne Ergebnis</translation>
    </message>
    <message>
        <source>%1 with a name that another has</source>
        <translation>%1 mit mehrfach vergebenem Namen</translation>
    </message>
    <message>
        <source>Paste, open or type points.</source>
        <translation>Punkte einfügen, öffnen oder eingeben.</translation>
    </message>
    <message>
        <source>Out of range.</source>
        <translation>Außerhalb des Bereichs.</translation>
    </message>
    <message>
        <source>Fitted ΔE</source>
        <translation>ΔE eingepasst</translation>
    </message>
    <message>
        <source>Fitted ΔN</source>
        <translation>ΔN eingepasst</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>A point without a check mark is left out of the statistics.</source>
        <translation>Ein Punkt ohne Häkchen bleibt aus der Statistik ausgeschlossen.</translation>
    </message>
    <message>
        <source>Ellipsoidal height; 0 where there is none.</source>
        <translation>Ellipsoidische Höhe; 0, wo keine angegeben ist.</translation>
    </message>
    <message>
        <source>Slanted: computed from the other pair.</source>
        <translation>Kursiv: aus dem anderen Paar berechnet.</translation>
    </message>
    <message>
        <source>What the fit would leave.</source>
        <translation>Was die Einpassung übrig ließe.</translation>
    </message>
    <message>
        <source>Computed from latitude and longitude, minus given.</source>
        <translation>Aus Breite und Länge berechnet, minus gegeben.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Öffnen...</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Speichern...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Next marked</source>
        <translation>Nächste Markierung</translation>
    </message>
    <message>
        <source>The next point beyond the tolerance, or row with a remark</source>
        <translation>Der nächste Punkt außerhalb der Toleranz oder die nächste Zeile mit Bemerkung</translation>
    </message>
    <message>
        <source>Report...</source>
        <translation>Bericht...</translation>
    </message>
    <message>
        <source>Writes the check as a document to file with the job.</source>
        <translation>Schreibt die Prüfung als Dokument für die Akten des Auftrags.</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Toleranz</translation>
    </message>
    <message>
        <source>Points that are farther off are marked.</source>
        <translation>Punkte, die weiter abweichen, werden markiert.</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>Eigenes</translation>
    </message>
    <message>
        <source>Datum of latitude, longitude and height: the system&apos;s own, or WGS 84</source>
        <translation>Datum von Breite, Länge und Höhe: das des Systems oder WGS 84</translation>
    </message>
    <message>
        <source>Which false origin and scale factor would meet the points best.</source>
        <translation>Welche Additionskonstanten und welcher Maßstabsfaktor am besten zu den Punkten passen würden.</translation>
    </message>
    <message>
        <source>All is written: that can&apos;t be cancelled any more.</source>
        <translation>Alles ist geschrieben: Abbrechen geht nicht mehr.</translation>
    </message>
    <message>
        <source>Cancelled: %1</source>
        <translation>Abgebrochen: %1</translation>
    </message>
    <message>
        <source>Open points</source>
        <translation>Punkte öffnen</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The clipboard</source>
        <translation>Die Zwischenablage</translation>
    </message>
    <message>
        <source>%1 has too many points; nothing of it is taken.</source>
        <translation>%1 hat zu viele Punkte; nichts davon wurde übernommen.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n row(s) read.</source>
        <translation>
            <numerusform>%1: %n Zeile gelesen.</numerusform>
            <numerusform>%1: %n Zeilen gelesen.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 can&apos;t be read to its end: %2</source>
        <translation>%1 kann nicht bis zum Ende gelesen werden: %2</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Computing</source>
        <translation>Berechnen</translation>
    </message>
    <message>
        <source>Comparing names</source>
        <translation>Namen vergleichen</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Zeichnen</translation>
    </message>
    <message>
        <source>Counting</source>
        <translation>Zählen</translation>
    </message>
    <message>
        <source>Point at the picture for a point&apos;s name.</source>
        <translation>Für den Namen eines Punkts auf ihn im Bild zeigen.</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Only the first %1 rows are copied. Save all as CSV.</source>
        <translation>Nur die ersten %1 Zeilen sind kopiert. Um alle zu erhalten, als CSV speichern.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied.</source>
        <translation>
            <numerusform>%n Zeile kopiert.</numerusform>
            <numerusform>%n Zeilen kopiert.</numerusform>
        </translation>
    </message>
    <message>
        <source>CSV as shown</source>
        <translation>CSV wie angezeigt</translation>
    </message>
    <message>
        <source>CSV with all digits</source>
        <translation>CSV mit allen Stellen</translation>
    </message>
    <message>
        <source>Save points</source>
        <translation>Punkte speichern</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Speichern</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n row(s) saved.</source>
        <translation>
            <numerusform>%1: %n Zeile gespeichert.</numerusform>
            <numerusform>%1: %n Zeilen gespeichert.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 can&apos;t be saved: %2</source>
        <translation>%1 kann nicht gespeichert werden: %2</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>%1: report saved.</source>
        <translation>%1: Bericht gespeichert.</translation>
    </message>
    <message>
        <source>No row is selected.</source>
        <translation>Keine Zeile ist ausgewählt.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) deleted; Ctrl+Z undoes that.</source>
        <translation>
            <numerusform>%n Zeile gelöscht; Strg+Z macht es rückgängig.</numerusform>
            <numerusform>%n Zeilen gelöscht; Strg+Z macht es rückgängig.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Es gibt nichts rückgängig zu machen.</translation>
    </message>
    <message>
        <source>Undone: the points are as they were before.</source>
        <translation>Rückgängig gemacht: die Punkte sind wie zuvor.</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n point(s) from the table?</source>
        <translation>
            <numerusform>Den Punkt aus der Tabelle entfernen?</numerusform>
            <numerusform>Alle %n Punkte aus der Tabelle entfernen?</numerusform>
        </translation>
    </message>
    <message>
        <source>All points are removed; Ctrl+Z undoes that.</source>
        <translation>Alle Punkte sind entfernt; Strg+Z macht es rückgängig.</translation>
    </message>
    <message>
        <source>All is within the tolerance and without a remark.</source>
        <translation>Alles ist innerhalb der Toleranz und ohne Bemerkung.</translation>
    </message>
    <message>
        <source>Picture of the points</source>
        <translation>Bild der Punkte</translation>
    </message>
    <message>
        <source>HTML, one file with its pictures</source>
        <translation>HTML, eine Datei samt Bildern</translation>
    </message>
    <message>
        <source>Save report</source>
        <translation>Bericht speichern</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>no document could be made</source>
        <translation>es konnte kein Dokument erzeugt werden</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Distortion</source>
        <translation>Verzerrung</translation>
    </message>
    <message>
        <source>Show angles in</source>
        <translation>Winkel anzeigen in</translation>
    </message>
    <message>
        <source>A fit needs points with latitude, longitude, easting and northing.</source>
        <translation>Eine Einpassung braucht Punkte mit Breite, Länge, Ostwert und Nordwert.</translation>
    </message>
    <message>
        <source>A fit takes %1 points at most: leave some out.</source>
        <translation>Eine Einpassung nimmt höchstens %1 Punkte: einige ausschließen.</translation>
    </message>
    <message>
        <source>The projection gives no result at one of the points.</source>
        <translation>Die Projektion liefert für einen der Punkte kein Ergebnis.</translation>
    </message>
    <message>
        <source>The points do not determine these values: hold one of them, or add points.</source>
        <translation>Die Punkte bestimmen diese Werte nicht: einen davon festhalten oder Punkte hinzufügen.</translation>
    </message>
    <message>
        <source>east</source>
        <translation>Osten</translation>
    </message>
    <message>
        <source>north</source>
        <translation>Norden</translation>
    </message>
    <message>
        <source>west</source>
        <translation>Westen</translation>
    </message>
    <message>
        <source>south</source>
        <translation>Süden</translation>
    </message>
    <message>
        <source>Easting and northing are swapped.</source>
        <translation>Ost- und Nordwert sind vertauscht.</translation>
    </message>
    <message>
        <source>The given eastings count %1, the northings %2.</source>
        <translation>Die gegebenen Ostwerte zählen nach %1, die Nordwerte nach %2.</translation>
    </message>
    <message>
        <source>The given eastings and northings are in feet.</source>
        <translation>Die gegebenen Ost- und Nordwerte sind in Fuß.</translation>
    </message>
    <message>
        <source>The given eastings and northings are metres that were taken for feet.</source>
        <translation>Die gegebenen Ost- und Nordwerte sind Meter, die für Fuß gehalten wurden.</translation>
    </message>
    <message>
        <source>The given grid is turned by %1° against the computed one</source>
        <translation>Das gegebene Gitter ist gegenüber dem berechneten um %1° gedreht</translation>
    </message>
    <message>
        <source>The points are of another zone: its central meridian is %1°.</source>
        <translation>Die Punkte gehören zu einer anderen Zone: deren Mittelmeridian ist %1°.</translation>
    </message>
    <message>
        <source>%1, as by a central meridian of %2°.</source>
        <translation>%1, wie durch einen Mittelmeridian von %2°.</translation>
    </message>
    <message>
        <source>There is nothing in it.</source>
        <translation>Es ist nichts darin.</translation>
    </message>
    <message>
        <source>It is no text. Save a table as CSV first.</source>
        <translation>Das ist kein Text. Tabellen zuerst als CSV speichern.</translation>
    </message>
    <message>
        <source>latitude</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>longitude</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>easting</source>
        <translation>Ostwert</translation>
    </message>
    <message>
        <source>northing</source>
        <translation>Nordwert</translation>
    </message>
    <message>
        <source>The line is too long for a point; its beginning is kept.</source>
        <translation>Die Zeile ist zu lang für einen Punkt; ihr Anfang bleibt erhalten.</translation>
    </message>
    <message>
        <source>Can&apos;t be read: %1.</source>
        <translation>Nicht lesbar: %1.</translation>
    </message>
    <message>
        <source>Out of range: %1.</source>
        <translation>Außerhalb des Bereichs: %1.</translation>
    </message>
    <message>
        <source>There are no coordinates.</source>
        <translation>Es sind keine Koordinaten da.</translation>
    </message>
    <message>
        <source>Missing: %1.</source>
        <translation>Es fehlt: %1.</translation>
    </message>
    <message>
        <source>The system defines no datum shift.</source>
        <translation>Das System definiert keinen Datumsübergang.</translation>
    </message>
    <message>
        <source>The name occurs more than once.</source>
        <translation>Der Name kommt mehrmals vor.</translation>
    </message>
    <message>
        <source>Line: %1</source>
        <translation>Zeile: %1</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Verwendet</translation>
    </message>
    <message>
        <source>Seven parameters need three points or more on both datums.</source>
        <translation>Sieben Parameter brauchen mindestens drei Punkte im eigenen Datum und in WGS 84.</translation>
    </message>
    <message>
        <source>Three parameters need one point or more on both datums.</source>
        <translation>Drei Parameter brauchen mindestens einen Punkt im eigenen Datum und in WGS 84.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; are the same point: leave one of them out.</source>
        <translation>„%1“ und „%2“ sind derselbe Punkt: einen davon ausschließen.</translation>
    </message>
    <message>
        <source>The points lie on a line, around which they leave the rotation open. Add a point beside the line, or take three parameters.</source>
        <translation>Die Punkte liegen auf einer Geraden und lassen die Rotation um sie offen. Einen Punkt abseits der Geraden hinzufügen oder drei Parameter nehmen.</translation>
    </message>
    <message>
        <source>No datum shift is as large as these points would have it. Are both places of each the same point, on the right datum?</source>
        <translation>Kein Datumsübergang ist so groß, wie diese Punkte ihn verlangen. Sind beide Orte jeweils derselbe Punkt, im richtigen Datum?</translation>
    </message>
    <message>
        <source>The area is too small to tell the translations from rotations and scale (correlation %1): the values mean nothing one by one, and hold within the area only. Three parameters are recommended if what they leave will do: a standard deviation of %2 m, against %3 m of seven.</source>
        <translation>Das Gebiet ist zu klein, um die Translationen von Rotationen und Maßstab zu trennen (Korrelation %1): die Werte bedeuten einzeln nichts und gelten nur innerhalb des Gebiets. Drei Parameter sind zu empfehlen, wenn genügt, was sie übrig lassen: eine Standardabweichung von %2 m gegenüber %3 m bei sieben.</translation>
    </message>
    <message>
        <source>No projection: these values make none.</source>
        <translation>Keine Projektion: diese Werte ergeben keine.</translation>
    </message>
    <message>
        <source>Rotations in the position-vector convention (EPSG 9606, PROJ towgs84). Figures published in the coordinate-frame convention (EPSG 9607): type them as they are, then reverse their signs.</source>
        <translation>Rotationen in der Positionsvektor-Konvention (EPSG 9606, PROJ towgs84). In der Koordinatenrahmen-Konvention (EPSG 9607) veröffentlichte Werte wie angegeben eintippen, dann ihre Vorzeichen umkehren.</translation>
    </message>
    <message>
        <source>Reverse rotation signs</source>
        <translation>Rotationsvorzeichen umkehren</translation>
    </message>
    <message>
        <source>From points...</source>
        <translation>Aus Punkten...</translation>
    </message>
    <message>
        <source>Stands in exported definitions; nothing is computed from it.</source>
        <translation>Steht in exportierten Definitionen; gerechnet wird damit nicht.</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>Shift to WGS 84</source>
        <translation>Übergang zu WGS 84</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>Seven parameters (three: the rest 0)</source>
        <translation>Sieben Parameter (drei: die übrigen 0)</translation>
    </message>
    <message>
        <source>Estimates the shift from points known on both datums.</source>
        <translation>Schätzt den Übergang aus Punkten, die im eigenen Datum und in WGS 84 bekannt sind.</translation>
    </message>
    <message>
        <source>Datum shift</source>
        <translation>Datumsübergang</translation>
    </message>
    <message>
        <source>Without a shift, coordinates on WGS 84 are unknown.</source>
        <translation>Ohne Übergang sind Koordinaten in WGS 84 unbekannt.</translation>
    </message>
    <message>
        <source>This kind of shift is unknown here; it is kept as it is.</source>
        <translation>Diese Art von Übergang ist hier unbekannt; sie bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>The signs of all three rotations are reversed.</source>
        <translation>Die Vorzeichen aller drei Rotationen sind umgekehrt.</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>Definition</translation>
    </message>
    <message>
        <source>PROJ definition</source>
        <translation>PROJ-Definition</translation>
    </message>
    <message>
        <source>WKT dialect</source>
        <translation>WKT-Dialekt</translation>
    </message>
    <message>
        <source>WKT 1 (GDAL)</source>
        <translation>WKT 1 (GDAL)</translation>
    </message>
    <message>
        <source>WKT 1 (ESRI)</source>
        <translation>WKT 1 (ESRI)</translation>
    </message>
    <message>
        <source>WKT 2:2019</source>
        <translation>WKT 2:2019</translation>
    </message>
    <message>
        <source>With identifier</source>
        <translation>Mit Kennung</translation>
    </message>
    <message>
        <source>Save as .prj</source>
        <translation>Als .prj speichern</translation>
    </message>
    <message>
        <source>Save group...</source>
        <translation>Gruppe speichern...</translation>
    </message>
    <message>
        <source>WKT</source>
        <translation>WKT</translation>
    </message>
    <message>
        <source>Where from</source>
        <translation>Herkunft</translation>
    </message>
    <message>
        <source>From text...</source>
        <translation>Aus Text...</translation>
    </message>
    <message>
        <source>This form can&apos;t express the system.</source>
        <translation>Diese Form kann das System nicht ausdrücken.</translation>
    </message>
    <message>
        <source>This form can&apos;t carry the identifier.</source>
        <translation>Diese Form kann die Kennung nicht aufnehmen.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>The file can&apos;t be written: %1</source>
        <translation>Die Datei kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>No coordinate system</source>
        <translation>Kein Koordinatensystem</translation>
    </message>
    <message>
        <source>%1 – choose a coordinate system in the tree</source>
        <translation>%1 – ein Koordinatensystem im Baum wählen</translation>
    </message>
    <message>
        <source>Forward to the edited values</source>
        <translation>Vor zu den bearbeiteten Werten</translation>
    </message>
    <message>
        <source>Back to the values before</source>
        <translation>Zurück zu den vorherigen Werten</translation>
    </message>
    <message>
        <source>Ellipsoid</source>
        <translation>Ellipsoid</translation>
    </message>
    <message>
        <source>Semi-minor axis b</source>
        <translation>Kleine Halbachse b</translation>
    </message>
    <message>
        <source>Eccentricity e</source>
        <translation>Exzentrizität e</translation>
    </message>
    <message>
        <source>Choose an ellipsoid.</source>
        <translation>Ein Ellipsoid wählen.</translation>
    </message>
    <message>
        <source>Not in the list of ellipsoids.</source>
        <translation>Nicht in der Liste der Ellipsoide.</translation>
    </message>
    <message>
        <source>The figures differ from the list&apos;s ellipsoid of this name.</source>
        <translation>Die Werte weichen vom Ellipsoid dieses Namens in der Liste ab.</translation>
    </message>
    <message>
        <source>Decimal degrees</source>
        <translation>Dezimalgrad</translation>
    </message>
    <message>
        <source>Degrees, minutes, seconds</source>
        <translation>Grad, Minuten, Sekunden</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Metre</source>
        <translation>Meter</translation>
    </message>
    <message>
        <source>International foot, 0.3048 m</source>
        <translation>Internationaler Fuß, 0.3048 m</translation>
    </message>
    <message>
        <source>US survey foot, 1200/3937 m</source>
        <translation>US-Vermessungsfuß, 1200/3937 m</translation>
    </message>
    <message>
        <source>Lengths in metres (m), international feet (ft) or US survey feet (ftUS)</source>
        <translation>Längenmaße in Metern (m), internationalen Fuß (ft) oder US-Vermessungsfuß (ftUS)</translation>
    </message>
    <message>
        <source>From text</source>
        <translation>Aus Text</translation>
    </message>
    <message>
        <source>Paste or type WKT, a PROJ definition, PROJJSON, or a code as EPSG:25832.</source>
        <translation>WKT, eine PROJ-Definition, PROJJSON oder einen Code wie EPSG:25832 einfügen oder eingeben.</translation>
    </message>
    <message>
        <source>Understood</source>
        <translation>Verstanden</translation>
    </message>
    <message>
        <source>Understood:</source>
        <translation>Verstanden:</translation>
    </message>
    <message>
        <source>Geoid model</source>
        <translation>Geoidmodell</translation>
    </message>
    <message>
        <source>Model file</source>
        <translation>Modelldatei</translation>
    </message>
    <message>
        <source>Model ellipsoid</source>
        <translation>Ellipsoid des Modells</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keines)</translation>
    </message>
    <message>
        <source>Not in the list of geoid models.</source>
        <translation>Nicht in der Liste der Geoidmodelle.</translation>
    </message>
    <message>
        <source>The model refers to another ellipsoid than the system.</source>
        <translation>Das Modell bezieht sich auf ein anderes Ellipsoid als das System.</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Methode</translation>
    </message>
    <message>
        <source>Projection method</source>
        <translation>Projektionsmethode</translation>
    </message>
    <message>
        <source>Choose the method</source>
        <translation>Die Methode wählen</translation>
    </message>
    <message>
        <source>Projection</source>
        <translation>Projektion</translation>
    </message>
    <message>
        <source>Still to choose.</source>
        <translation>Noch zu wählen.</translation>
    </message>
    <message>
        <source>A latitude goes with N or S.</source>
        <translation>Zu einer Breite gehört N oder S.</translation>
    </message>
    <message>
        <source>A longitude goes with E or W.</source>
        <translation>Zu einer Länge gehört E oder W.</translation>
    </message>
    <message>
        <source>An azimuth goes without a letter.</source>
        <translation>Zu einem Azimut gehört kein Buchstabe.</translation>
    </message>
    <message>
        <source>Use a decimal point, not a comma.</source>
        <translation>Dezimalpunkt statt Komma verwenden.</translation>
    </message>
    <message>
        <source>Not an angle. Examples: 7.5, 7 30 00, 7°30&apos;00&quot;.</source>
        <translation>Kein Winkel. Beispiele: 7.5, 7 30 00, 7°30&apos;00&quot;.</translation>
    </message>
    <message>
        <source>Only the last part may have decimals.</source>
        <translation>Nur der letzte Teil darf Dezimalen haben.</translation>
    </message>
    <message>
        <source>Minutes must be less than 60.</source>
        <translation>Minuten müssen kleiner als 60 sein.</translation>
    </message>
    <message>
        <source>Seconds must be less than 60.</source>
        <translation>Sekunden müssen kleiner als 60 sein.</translation>
    </message>
    <message>
        <source>Give either a sign or a letter.</source>
        <translation>Entweder Vorzeichen oder Buchstabe angeben.</translation>
    </message>
    <message>
        <source>Semi-major axis a</source>
        <translation>Große Halbachse a</translation>
    </message>
    <message>
        <source>Inverse flattening 1/f</source>
        <translation>Reziproke Abplattung 1/f</translation>
    </message>
    <message>
        <source>Translation X</source>
        <translation>Translation X</translation>
    </message>
    <message>
        <source>Translation Y</source>
        <translation>Translation Y</translation>
    </message>
    <message>
        <source>Translation Z</source>
        <translation>Translation Z</translation>
    </message>
    <message>
        <source>Rotation X</source>
        <translation>Rotation X</translation>
    </message>
    <message>
        <source>Rotation Y</source>
        <translation>Rotation Y</translation>
    </message>
    <message>
        <source>Rotation Z</source>
        <translation>Rotation Z</translation>
    </message>
    <message>
        <source>Scale difference</source>
        <translation>Maßstabsdifferenz</translation>
    </message>
    <message>
        <source>A sphere.</source>
        <translation>Eine Kugel.</translation>
    </message>
    <message>
        <source>Unusual for the Earth.</source>
        <translation>Für die Erde ungewöhnlich.</translation>
    </message>
    <message>
        <source>Unusually large.</source>
        <translation>Ungewöhnlich groß.</translation>
    </message>
    <message>
        <source>Nothing can be computed: the projection module is not installed.</source>
        <translation>Nichts kann berechnet werden: das Projektionsmodul ist nicht installiert.</translation>
    </message>
    <message>
        <source>These parameters give no projection that can be computed.</source>
        <translation>Diese Parameter ergeben keine berechenbare Projektion.</translation>
    </message>
    <message>
        <source>The model names no file.</source>
        <translation>Das Modell nennt keine Datei.</translation>
    </message>
    <message>
        <source>Not in the folder of geoid models.</source>
        <translation>Nicht im Ordner der Geoidmodelle.</translation>
    </message>
    <message>
        <source>The folder of geoid models has &quot;%1&quot; instead.</source>
        <translation>Im Ordner der Geoidmodelle liegt stattdessen „%1“.</translation>
    </message>
    <message>
        <source>Not a file.</source>
        <translation>Keine Datei.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>Not a length in %1 with a decimal point.</source>
        <translation>Keine Länge in %1 mit Dezimalpunkt.</translation>
    </message>
    <message>
        <source>Allowed: 0 (sphere), or more than 1.</source>
        <translation>Erlaubt: 0 (Kugel) oder mehr als 1.</translation>
    </message>
    <message>
        <source>Allowed: between %1 and %2.</source>
        <translation>Erlaubt: zwischen %1 und %2.</translation>
    </message>
    <message>
        <source>Allowed: ±%1.</source>
        <translation>Erlaubt: ±%1.</translation>
    </message>
    <message>
        <source>Allowed: %1 to %2.</source>
        <translation>Erlaubt: %1 bis %2.</translation>
    </message>
    <message>
        <source>A value is needed.</source>
        <translation>Ein Wert wird gebraucht.</translation>
    </message>
    <message>
        <source>Only digits and a decimal point.</source>
        <translation>Nur Ziffern und ein Dezimalpunkt.</translation>
    </message>
    <message>
        <source>Datum shift to WGS 84: none</source>
        <translation>Datumsübergang zu WGS 84: keiner</translation>
    </message>
    <message>
        <source>Datum shift to WGS 84: %1</source>
        <translation>Datumsübergang zu WGS 84: %1</translation>
    </message>
    <message>
        <source>Pasted text, %1</source>
        <translation>Eingefügter Text, %1</translation>
    </message>
    <message>
        <source>The text counts in %1, the record in metres.</source>
        <translation>Der Text rechnet in %1, der Datensatz in Metern.</translation>
    </message>
    <message>
        <source>Its datum shift is by grids, or of another kind, and is left out.</source>
        <translation>Der Datumsübergang beruht auf Gittern oder ist anderer Art und wird ausgelassen.</translation>
    </message>
    <message>
        <source>Its heights are left out.</source>
        <translation>Die Höhen werden ausgelassen.</translation>
    </message>
    <message>
        <source>The registry has withdrawn it.</source>
        <translation>Das Register hat es zurückgezogen.</translation>
    </message>
    <message>
        <source>(line %1, column %2)</source>
        <translation>(Zeile %1, Spalte %2)</translation>
    </message>
    <message>
        <source>Ellipsoid: %1, a %2 m, 1/f %3</source>
        <translation>Ellipsoid: %1, a %2 m, 1/f %3</translation>
    </message>
    <message>
        <source>Datum: %1</source>
        <translation>Datum: %1</translation>
    </message>
    <message>
        <source>not named</source>
        <translation>nicht benannt</translation>
    </message>
    <message>
        <source>No projection: latitudes of the points equal, or the first 0.</source>
        <translation>Keine Projektion: Breiten der Punkte gleich, oder die erste 0.</translation>
    </message>
    <message>
        <source>No projection: the standard parallels cancel out.</source>
        <translation>Keine Projektion: die Standardparallelen heben sich auf.</translation>
    </message>
    <message>
        <source>No projection yet: the system has no ellipsoid.</source>
        <translation>Noch keine Projektion: das System hat kein Ellipsoid.</translation>
    </message>
    <message>
        <source>No projection yet: choose the method.</source>
        <translation>Noch keine Projektion: die Methode wählen.</translation>
    </message>
    <message>
        <source>No projection: the method &quot;%1&quot; is unknown.</source>
        <translation>Keine Projektion: die Methode „%1“ ist unbekannt.</translation>
    </message>
    <message>
        <source>No projection: the definition fits none of the methods.</source>
        <translation>Keine Projektion: die Definition passt zu keiner der Methoden.</translation>
    </message>
    <message>
        <source>No projection: &quot;%1&quot; is missing or wrong.</source>
        <translation>Keine Projektion: „%1“ fehlt oder ist falsch.</translation>
    </message>
    <message>
        <source>No projection: a standard parallel needs the scale factor 1.</source>
        <translation>Keine Projektion: eine Standardparallele verlangt den Maßstabsfaktor 1.</translation>
    </message>
    <message>
        <source>No projection: the scale factor is missing.</source>
        <translation>Keine Projektion: der Maßstabsfaktor fehlt.</translation>
    </message>
    <message>
        <source>Must be 1: the standard parallel sets the scale.</source>
        <translation>Muss 1 sein: die Standardparallele legt den Maßstab fest.</translation>
    </message>
    <message>
        <source>Unusual: scale factors lie close to 1.</source>
        <translation>Ungewöhnlich: Maßstabsfaktoren liegen nahe bei 1.</translation>
    </message>
    <message>
        <source>Without effect: the origin is no pole.</source>
        <translation>Ohne Wirkung: der Ursprung ist kein Pol.</translation>
    </message>
    <message>
        <source>With 0° this is the plain Mercator projection.</source>
        <translation>Mit 0° ist dies die einfache Mercatorprojektion.</translation>
    </message>
    <message>
        <source>Usually equal to the latitude of origin.</source>
        <translation>Meist gleich der Breite des Ursprungs.</translation>
    </message>
    <message>
        <source>The standard parallels nearly cancel out.</source>
        <translation>Die Standardparallelen heben sich fast auf.</translation>
    </message>
    <message>
        <source>Gives the line of %1°. For the line of this azimuth, type %2°.</source>
        <translation>Ergibt die Linie von %1°. Für die Linie mit diesem Azimut %2° eingeben.</translation>
    </message>
    <message>
        <source>Zone %1 of UTM has the central meridian %2°.</source>
        <translation>Die UTM-Zone %1 hat den Mittelmeridian %2°.</translation>
    </message>
    <message>
        <source>Does not fit zone %1 of the false easting.</source>
        <translation>Passt nicht zur Zone %1 der Additionskonstante Ost.</translation>
    </message>
    <message>
        <source>Latitude of origin</source>
        <translation>Breite des Ursprungs</translation>
    </message>
    <message>
        <source>Latitude of centre</source>
        <translation>Breite des Zentrums</translation>
    </message>
    <message>
        <source>Longitude of origin</source>
        <translation>Länge des Ursprungs</translation>
    </message>
    <message>
        <source>Longitude of centre</source>
        <translation>Länge des Zentrums</translation>
    </message>
    <message>
        <source>Latitude of point 1</source>
        <translation>Breite von Punkt 1</translation>
    </message>
    <message>
        <source>Longitude of point 1</source>
        <translation>Länge von Punkt 1</translation>
    </message>
    <message>
        <source>Latitude of point 2</source>
        <translation>Breite von Punkt 2</translation>
    </message>
    <message>
        <source>Longitude of point 2</source>
        <translation>Länge von Punkt 2</translation>
    </message>
    <message>
        <source>Azimuth of the line</source>
        <translation>Azimut der Linie</translation>
    </message>
    <message>
        <source>Standard parallel 1</source>
        <translation>Standardparallele 1</translation>
    </message>
    <message>
        <source>Standard parallel 2</source>
        <translation>Standardparallele 2</translation>
    </message>
    <message>
        <source>Easting at centre</source>
        <translation>Ostwert im Zentrum</translation>
    </message>
    <message>
        <source>Northing at centre</source>
        <translation>Nordwert im Zentrum</translation>
    </message>
    <message>
        <source>Gauss-Krüger (scale factor 1)</source>
        <translation>Gauß-Krüger (Maßstabsfaktor 1)</translation>
    </message>
    <message>
        <source>Transverse Mercator</source>
        <translation>Transversale Mercatorprojektion</translation>
    </message>
    <message>
        <source>Mercator</source>
        <translation>Mercatorprojektion</translation>
    </message>
    <message>
        <source>Mercator (standard parallel)</source>
        <translation>Mercatorprojektion (Standardparallele)</translation>
    </message>
    <message>
        <source>Oblique Mercator (azimuth)</source>
        <translation>Schiefachsige Mercatorprojektion (Azimut)</translation>
    </message>
    <message>
        <source>Stereographic</source>
        <translation>Stereografische Projektion</translation>
    </message>
    <message>
        <source>Oblique Stereographic (double)</source>
        <translation>Stereografisch, schiefachsig (doppelt)</translation>
    </message>
    <message>
        <source>Lambert Conic Conformal (1SP)</source>
        <translation>Lambertsche konforme Kegelprojektion (1SP)</translation>
    </message>
    <message>
        <source>Lambert Conic Conformal (2SP)</source>
        <translation>Lambertsche konforme Kegelprojektion (2SP)</translation>
    </message>
    <message>
        <source>Oblique Mercator (two points)</source>
        <translation>Schiefachsige Mercatorprojektion (zwei Punkte)</translation>
    </message>
    <message>
        <source>Cassini-Soldner</source>
        <translation>Cassini-Soldner</translation>
    </message>
    <message>
        <source>the name</source>
        <translation>der Name</translation>
    </message>
    <message>
        <source>the ellipsoid&apos;s name</source>
        <translation>der Name des Ellipsoids</translation>
    </message>
    <message>
        <source>the projection method</source>
        <translation>die Projektionsmethode</translation>
    </message>
    <message>
        <source>the datum shift</source>
        <translation>der Datumsübergang</translation>
    </message>
    <message>
        <source>This form can&apos;t be imported again.</source>
        <translation>Diese Form lässt sich nicht wieder importieren.</translation>
    </message>
    <message>
        <source>Does not come back with an import of this form: %1.</source>
        <translation>Kommt beim Import dieser Form nicht zurück: %1.</translation>
    </message>
    <message>
        <source>Other software may count easting and northing from the natural origin.</source>
        <translation>Andere Software zählt Ost- und Nordwert vielleicht vom natürlichen Ursprung.</translation>
    </message>
    <message>
        <source>Position-vector convention (EPSG 9606, PROJ towgs84)</source>
        <translation>Positionsvektor-Konvention (EPSG 9606, PROJ towgs84)</translation>
    </message>
    <message>
        <source>of an unknown kind</source>
        <translation>unbekannter Art</translation>
    </message>
    <message>
        <source>A geographic system: latitude and longitude, without a projection.</source>
        <translation>Ein geografisches System: Breite und Länge, ohne Projektion.</translation>
    </message>
    <message>
        <source>A geocentric system: X, Y and Z, without a projection.</source>
        <translation>Ein geozentrisches System: X, Y und Z, ohne Projektion.</translation>
    </message>
    <message>
        <source>A system of heights, without a projection.</source>
        <translation>Ein Höhensystem, ohne Projektion.</translation>
    </message>
    <message>
        <source>A local system, without a place on the Earth.</source>
        <translation>Ein lokales System, ohne Ort auf der Erde.</translation>
    </message>
    <message>
        <source>No system that is projected.</source>
        <translation>Kein projiziertes System.</translation>
    </message>
    <message>
        <source>None of the methods holds this projection exactly: %1.</source>
        <translation>Keine der Methoden gibt diese Projektion genau wieder: %1.</translation>
    </message>
    <message>
        <source>The axes do not point east and north, but: %1.</source>
        <translation>Die Achsen zeigen nicht nach Osten und Norden, sondern: %1.</translation>
    </message>
    <message>
        <source>The grid is turned by %1°, not by the azimuth of the line, %2°.</source>
        <translation>Das Gitter ist um %1° gedreht, nicht um das Azimut der Linie, %2°.</translation>
    </message>
    <message>
        <source>With the azimuth 90° easting and northing can&apos;t count from the natural origin.</source>
        <translation>Beim Azimut 90° können Ost- und Nordwert nicht vom natürlichen Ursprung zählen.</translation>
    </message>
    <message>
        <source>The standard parallel, %1°, is not the latitude of origin, %2°, as this method has it.</source>
        <translation>Die Standardparallele, %1°, ist nicht die Breite des Ursprungs, %2°, wie es diese Methode vorsieht.</translation>
    </message>
    <message>
        <source>A polar projection that names no pole, or does not say its scale in one way.</source>
        <translation>Eine polare Projektion, die keinen Pol nennt oder ihren Maßstab nicht eindeutig angibt.</translation>
    </message>
    <message>
        <source>A parameter is missing: %1.</source>
        <translation>Ein Parameter fehlt: %1.</translation>
    </message>
    <message>
        <source>A parameter is unknown: %1.</source>
        <translation>Ein Parameter ist unbekannt: %1.</translation>
    </message>
    <message>
        <source>A parameter does not belong to the method: %1.</source>
        <translation>Ein Parameter gehört nicht zur Methode: %1.</translation>
    </message>
    <message>
        <source>A parameter has two values: %1.</source>
        <translation>Ein Parameter hat zwei Werte: %1.</translation>
    </message>
    <message>
        <source>A value is no number, or out of range: %1.</source>
        <translation>Ein Wert ist keine Zahl oder außerhalb des Bereichs: %1.</translation>
    </message>
    <message>
        <source>A unit is missing, or not what its name says: %1.</source>
        <translation>Eine Einheit fehlt oder ist nicht, was ihr Name sagt: %1.</translation>
    </message>
    <message>
        <source>The prime meridian&apos;s longitude is not that of its name: %1.</source>
        <translation>Die Länge des Nullmeridians ist nicht die seines Namens: %1.</translation>
    </message>
    <message>
        <source>The ellipsoid is unknown, or its axes leave a doubt.</source>
        <translation>Das Ellipsoid ist unbekannt, oder seine Achsen sind nicht eindeutig.</translation>
    </message>
    <message>
        <source>Twice, or with a number too many (a decimal comma?): %1.</source>
        <translation>Doppelt oder mit einer Zahl zu viel (ein Dezimalkomma?): %1.</translation>
    </message>
    <message>
        <source>PROJ makes another projection of these parameters, or none.</source>
        <translation>PROJ macht aus diesen Parametern eine andere Projektion oder keine.</translation>
    </message>
    <message>
        <source>The text names a file, which is not read: %1.</source>
        <translation>Der Text nennt eine Datei, die nicht gelesen wird: %1.</translation>
    </message>
    <message>
        <source>No WKT, no PROJJSON, no PROJ definition and no code of a registry.</source>
        <translation>Kein WKT, kein PROJJSON, keine PROJ-Definition und kein Code eines Registers.</translation>
    </message>
    <message>
        <source>Too long, or brackets too deep: up to %1 bytes are read.</source>
        <translation>Zu lang oder zu tief geklammert: bis zu %1 Bytes werden gelesen.</translation>
    </message>
    <message>
        <source>No registry has the system %1.</source>
        <translation>Kein Register hat das System %1.</translation>
    </message>
    <message>
        <source>PROJ can&apos;t read it: %1</source>
        <translation>PROJ kann es nicht lesen: %1</translation>
    </message>
    <message>
        <source>%1 (deprecated)</source>
        <translation>%1 (veraltet)</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>northing comes first</source>
        <translation>zuerst der Nordwert kommt</translation>
    </message>
    <message>
        <source>in US survey feet</source>
        <translation>in US-Vermessungsfuß</translation>
    </message>
    <message>
        <source>in international feet</source>
        <translation>in internationalen Fuß</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>in %1</translation>
    </message>
    <message>
        <source>%1 is missing before the easting</source>
        <translation>%1 vor dem Ostwert fehlt</translation>
    </message>
    <message>
        <source>%1 before the easting is the zone</source>
        <translation>%1 vor dem Ostwert die Zone ist</translation>
    </message>
    <message>
        <source>if %1</source>
        <translation>falls %1</translation>
    </message>
    <message>
        <source>the same</source>
        <translation>gleich</translation>
    </message>
    <message>
        <source>own</source>
        <translation>eigenes</translation>
    </message>
    <message>
        <source>With the system&apos;s datum shift, the place being on WGS 84</source>
        <translation>Mit dem Datumsübergang des Systems, der Ort in WGS 84</translation>
    </message>
    <message>
        <source>From the place to where the system has the coordinates; of several points the root mean square</source>
        <translation>Vom Ort bis dahin, wo das System die Koordinaten hat; bei mehreren Punkten das quadratische Mittel</translation>
    </message>
    <message>
        <source>What is left of the distances without what all points have in common, as a datum shift: the smaller, the better the system fits</source>
        <translation>Was von den Abständen bleibt ohne das, was allen Punkten gemeinsam ist, wie ein Datumsübergang: je kleiner, desto besser passt das System</translation>
    </message>
    <message>
        <source>Spread</source>
        <translation>Streuung</translation>
    </message>
    <message>
        <source>EPSG</source>
        <translation>EPSG</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Bedingung</translation>
    </message>
    <message>
        <source>EPSG:%1, %2</source>
        <translation>EPSG:%1, %2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>fehlt</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 und %n weiteres</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>In the registry</source>
        <translation>Im Register</translation>
    </message>
    <message>
        <source>The record is no system of the registry.</source>
        <translation>Der Datensatz ist kein System des Registers.</translation>
    </message>
    <message>
        <source>Says that this is %1.</source>
        <translation>Sagt aus, dass dies %1 ist.</translation>
    </message>
    <message>
        <source>Says that this is %1, on the datum %2.</source>
        <translation>Sagt aus, dass dies %1 ist, im Datum %2.</translation>
    </message>
    <message>
        <source>The registry leaves the datum open.</source>
        <translation>Das Register lässt das Datum offen.</translation>
    </message>
    <message>
        <source>The registry&apos;s datum is %1.</source>
        <translation>Das Datum im Register ist %1.</translation>
    </message>
    <message>
        <source>The registry counts in %1, the record in metres.</source>
        <translation>Das Register rechnet in %1, der Datensatz in Metern.</translation>
    </message>
    <message>
        <source>The registry&apos;s figures differ a little.</source>
        <translation>Die Werte des Registers weichen ein wenig ab.</translation>
    </message>
    <message>
        <source>Looking through the EPSG registry...</source>
        <translation>Das EPSG-Register wird durchsucht...</translation>
    </message>
    <message>
        <source>%1: the same to %2 mm over its area</source>
        <translation>%1: bis auf %2 mm gleich im ganzen Gebiet</translation>
    </message>
    <message>
        <source>Also %1</source>
        <translation>Auch %1</translation>
    </message>
    <message>
        <source>No system of the EPSG registry is like it</source>
        <translation>Kein System des EPSG-Registers gleicht ihm</translation>
    </message>
    <message>
        <source>As %1, but: %2</source>
        <translation>Wie %1, aber: %2</translation>
    </message>
    <message>
        <source>%1 %2 (there %3)</source>
        <translation>%1 %2 (dort %3)</translation>
    </message>
    <message>
        <source>EPSG code, words of the name or of the area</source>
        <translation>EPSG-Code, Wörter des Namens oder des Gebiets</translation>
    </message>
    <message>
        <source>Deprecated ones too</source>
        <translation>Auch veraltete</translation>
    </message>
    <message>
        <source>Covers the point</source>
        <translation>Deckt den Punkt ab</translation>
    </message>
    <message>
        <source>Systems found: %1</source>
        <translation>Gefundene Systeme: %1</translation>
    </message>
    <message>
        <source>A place, roughly, and the coordinates that it has in the unknown system; more points narrow it down.</source>
        <translation>Ein ungefährer Ort und die Koordinaten, die er im unbekannten System hat; weitere Punkte grenzen es ein.</translation>
    </message>
    <message>
        <source>Paste rows</source>
        <translation>Zeilen einfügen</translation>
    </message>
    <message>
        <source>Lines of latitude, longitude, first and second coordinate</source>
        <translation>Zeilen mit Breite, Länge, erster und zweiter Koordinate</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Suche läuft...</translation>
    </message>
    <message>
        <source>Systems found so far: %1</source>
        <translation>Bisher gefundene Systeme: %1</translation>
    </message>
    <message>
        <source>No system that is used there can have these coordinates.</source>
        <translation>Kein dort verwendetes System kann diese Koordinaten haben.</translation>
    </message>
    <message>
        <source>Distances are without datum shift, which can move a place by some hundred metres.</source>
        <translation>Abstände sind ohne Datumsübergang, der einen Ort um einige hundert Meter versetzen kann.</translation>
    </message>
    <message numerus="yes">
        <source>No system gives these coordinates within 50 km of the place. The nearest %n:</source>
        <translation>
            <numerusform>Kein System liefert diese Koordinaten innerhalb von 50 km um den Ort. Das nächste:</numerusform>
            <numerusform>Kein System liefert diese Koordinaten innerhalb von 50 km um den Ort. Die nächsten %n:</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 from the place, with the system&apos;s datum shift</source>
        <translation>%1 vom Ort, mit dem Datumsübergang des Systems</translation>
    </message>
    <message>
        <source>%1 from the place, without datum shift</source>
        <translation>%1 vom Ort, ohne Datumsübergang</translation>
    </message>
    <message>
        <source>, %1 with the one below</source>
        <translation>, %1 mit dem unten gewählten</translation>
    </message>
    <message>
        <source>Nothing to paste: lines of latitude, longitude and two coordinates.</source>
        <translation>Nichts einzufügen: Zeilen mit Breite, Länge und zwei Koordinaten.</translation>
    </message>
    <message>
        <source>First coordinate</source>
        <translation>Erste Koordinate</translation>
    </message>
    <message>
        <source>Second coordinate</source>
        <translation>Zweite Koordinate</translation>
    </message>
    <message>
        <source>%1 of point %2</source>
        <translation>%1 von Punkt %2</translation>
    </message>
    <message>
        <source>Point %1, %2: %3</source>
        <translation>Punkt %1, %2: %3</translation>
    </message>
    <message>
        <source>%1, accuracy %2 m</source>
        <translation>%1, Genauigkeit %2 m</translation>
    </message>
    <message>
        <source>From registry</source>
        <translation>Aus Register</translation>
    </message>
    <message>
        <source>By name or code</source>
        <translation>Nach Name oder Code</translation>
    </message>
    <message>
        <source>From coordinates</source>
        <translation>Nach Koordinaten</translation>
    </message>
    <message>
        <source>Datum shift to WGS 84</source>
        <translation>Datumsübergang zu WGS 84</translation>
    </message>
    <message>
        <source>Copies this system&apos;s ellipsoid, projection, datum shift and geoid model; name and remark stay.</source>
        <translation>Kopiert Ellipsoid, Projektion, Datumsübergang und Geoidmodell dieses Systems; Name und Bemerkung bleiben.</translation>
    </message>
    <message>
        <source>As in the catalogue</source>
        <translation>Wie im Katalog</translation>
    </message>
    <message>
        <source>Of the own catalogue: %1</source>
        <translation>Aus dem eigenen Katalog: %1</translation>
    </message>
    <message>
        <source>The file is there already.</source>
        <translation>Die Datei ist schon da.</translation>
    </message>
    <message>
        <source>The file there is an older one.</source>
        <translation>Die Datei dort ist eine ältere.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>Left out. %1</source>
        <translation>Ausgelassen. %1</translation>
    </message>
    <message>
        <source>There already</source>
        <translation>Schon vorhanden</translation>
    </message>
    <message>
        <source>Saved. %1</source>
        <translation>Gespeichert. %1</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Gespeichert: %1</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>Ausgelassen: %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Save group as .prj</source>
        <translation>Gruppe als .prj speichern</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen...</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>Copy summary</source>
        <translation>Zusammenfassung kopieren</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>Keep existing</source>
        <translation>Vorhandene behalten</translation>
    </message>
    <message numerus="yes">
        <source>There already: %n of %1 files. Overwrite them?</source>
        <translation>
            <numerusform>Schon vorhanden: %n von %1 Dateien. Überschreiben?</numerusform>
            <numerusform>Schon vorhanden: %n von %1 Dateien. Überschreiben?</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no such folder.</source>
        <translation>Es gibt keinen solchen Ordner.</translation>
    </message>
    <message>
        <source>Systems: %1</source>
        <translation>Systeme: %1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Shift from points</source>
        <translation>Übergang aus Punkten</translation>
    </message>
    <message>
        <source>Own datum</source>
        <translation>Eigenes Datum</translation>
    </message>
    <message>
        <source>Latitude, longitude, height</source>
        <translation>Breite, Länge, Höhe</translation>
    </message>
    <message>
        <source>Easting, northing, height</source>
        <translation>Ostwert, Nordwert, Höhe</translation>
    </message>
    <message>
        <source>Geocentric X, Y, Z</source>
        <translation>Geozentrisch X, Y, Z</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Seven</source>
        <translation>Sieben</translation>
    </message>
    <message>
        <source>Three</source>
        <translation>Drei</translation>
    </message>
    <message>
        <source>Points are typed, or pasted as lines: name and three numbers on either datum.</source>
        <translation>Punkte eingeben oder als Zeilen einfügen: Name und drei Zahlen im einen oder anderen Datum.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>Empfehlung</translation>
    </message>
    <message>
        <source>Just enough points: nothing is left over to tell how good the shift is.</source>
        <translation>Gerade genug Punkte: keine Überbestimmung, an der die Güte des Übergangs zu erkennen wäre.</translation>
    </message>
    <message>
        <source>Standard deviation of a coordinate: %1 m (redundancy %2).</source>
        <translation>Standardabweichung einer Koordinate: %1 m (Redundanz %2).</translation>
    </message>
    <message>
        <source>%1 with %2 %3</source>
        <translation>%1 mit %2 %3</translation>
    </message>
    <message>
        <source>Largest correlations: %1.</source>
        <translation>Größte Korrelationen: %1.</translation>
    </message>
    <message>
        <source>Lines that can&apos;t be used: %1.</source>
        <translation>Nicht verwendbare Zeilen: %1.</translation>
    </message>
    <message>
        <source>The projection gives no result here.</source>
        <translation>Die Projektion liefert hier kein Ergebnis.</translation>
    </message>
    <message>
        <source>This place is not on the Earth.</source>
        <translation>Dieser Ort liegt nicht auf der Erde.</translation>
    </message>
    <message>
        <source>The other points speak against this one: check it, or leave it out.</source>
        <translation>Die anderen Punkte sprechen gegen diesen: prüfen oder ausschließen.</translation>
    </message>
    <message>
        <source>Easting, m</source>
        <translation>Ostwert, m</translation>
    </message>
    <message>
        <source>Northing, m</source>
        <translation>Nordwert, m</translation>
    </message>
    <message>
        <source>Height, m</source>
        <translation>Höhe, m</translation>
    </message>
    <message>
        <source>WGS 84 X, m</source>
        <translation>WGS 84 X, m</translation>
    </message>
    <message>
        <source>WGS 84 latitude</source>
        <translation>WGS 84 Breite</translation>
    </message>
    <message>
        <source>WGS 84 Y, m</source>
        <translation>WGS 84 Y, m</translation>
    </message>
    <message>
        <source>WGS 84 longitude</source>
        <translation>WGS 84 Länge</translation>
    </message>
    <message>
        <source>WGS 84 Z, m</source>
        <translation>WGS 84 Z, m</translation>
    </message>
    <message>
        <source>WGS 84 height, m</source>
        <translation>WGS 84 Höhe, m</translation>
    </message>
    <message>
        <source>Before, m</source>
        <translation>Vorher, m</translation>
    </message>
    <message>
        <source>East, mm</source>
        <translation>Ost, mm</translation>
    </message>
    <message>
        <source>North, mm</source>
        <translation>Nord, mm</translation>
    </message>
    <message>
        <source>Up, mm</source>
        <translation>Höhe, mm</translation>
    </message>
    <message>
        <source>Smallest value: %1 %2 at easting %3, northing %4.</source>
        <translation>Kleinster Wert: %1 %2 bei Ostwert %3, Nordwert %4.</translation>
    </message>
    <message>
        <source>Largest value: %1 %2 at easting %3, northing %4.</source>
        <translation>Größter Wert: %1 %2 bei Ostwert %3, Nordwert %4.</translation>
    </message>
    <message>
        <source>The picture: easting %1 to %2, northing %3 to %4, in %5.</source>
        <translation>Das Bild: Ostwert %1 bis %2, Nordwert %3 bis %4, in %5.</translation>
    </message>
    <message>
        <source>The arrow keys move a mark over it.</source>
        <translation>Die Pfeiltasten bewegen eine Marke darüber.</translation>
    </message>
    <message>
        <source>The picture is empty.</source>
        <translation>Das Bild ist leer.</translation>
    </message>
    <message>
        <source>%1 before</source>
        <translation>%1 vorher</translation>
    </message>
    <message>
        <source>First lines</source>
        <translation>Erste Zeilen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Points drawn: %1, beyond the tolerance: %2, left out: %3.</source>
        <translation>Gezeichnete Punkte: %1, außerhalb der Toleranz: %2, ausgeschlossen: %3.</translation>
    </message>
    <message>
        <source>Largest difference: %1 %2; differences are drawn %3.</source>
        <translation>Größte Differenz: %1 %2; Differenzen sind %3 gezeichnet.</translation>
    </message>
    <message>
        <source>Copy the PROJ definition</source>
        <translation>Die PROJ-Definition kopieren</translation>
    </message>
    <message>
        <source>Copy the WKT</source>
        <translation>Das WKT kopieren</translation>
    </message>
    <message>
        <source>This comma could part thousands: use a decimal point.</source>
        <translation>Dieses Komma könnte Tausender trennen: einen Dezimalpunkt verwenden.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A name, and what is said of it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Two sentences</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Systems found: %1.</source>
        <translation>Gefundene Systeme: %1.</translation>
    </message>
    <message>
        <source>Height</source>
        <comment>what a system says of heights</comment>
        <translation>Höhe</translation>
    </message>
</context>
<context>
    <name>DlgCoordSysGroups</name>
    <message>
        <source>CoordSysGroup</source>
        <translation>Koordinatensysteme</translation>
    </message>
    <message>
        <source>AddSysGroup</source>
        <translation>Neue Gruppe</translation>
    </message>
    <message>
        <source>ImportCoordSys</source>
        <translation>Systeme importieren</translation>
    </message>
    <message>
        <source>AddCoordSys</source>
        <translation>Neues System</translation>
    </message>
    <message>
        <source>EditSysGroup</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>DelSysGroup</source>
        <translation>Gruppe löschen</translation>
    </message>
    <message>
        <source>EditSys</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>DelSys</source>
        <translation>System löschen</translation>
    </message>
    <message>
        <source>are you sure delete coord system group %1 ?</source>
        <translation>Gruppe %1 wirklich löschen?</translation>
    </message>
    <message>
        <source>are you sure delete coord system %1 ?</source>
        <translation>Koordinatensystem %1 wirklich löschen?</translation>
    </message>
    <message>
        <source>Selecte WKT file</source>
        <translation>WKT-Dateien wählen</translation>
    </message>
    <message>
        <source>Import file failed!</source>
        <translation>Import der Datei fehlgeschlagen!</translation>
    </message>
    <message>
        <source>Import file isn&apos;t projection coordinates!</source>
        <translation>Die importierte Datei enthält kein projiziertes Koordinatensystem!</translation>
    </message>
    <message>
        <source>The Imported projection coordinates already exist in the group!</source>
        <translation>Das importierte projizierte Koordinatensystem ist in der Gruppe schon vorhanden!</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>DlgInputName</name>
    <message>
        <source>please input name</source>
        <translation>Namen eingeben</translation>
    </message>
    <message>
        <source>please input valid content!</source>
        <translation>Bitte einen gültigen Namen eingeben!</translation>
    </message>
    <message>
        <source>has same as coord group name!</source>
        <translation>Eine Gruppe dieses Namens gibt es schon!</translation>
    </message>
    <message>
        <source>has same as coord system name!</source>
        <translation>Ein System dieses Namens gibt es schon!</translation>
    </message>
    <message>
        <source>information</source>
        <translation>Hinweis</translation>
    </message>
</context>
<context>
    <name>QFile</name>
    <message>
        <source>Filename refers to a directory</source>
        <translation>Der Dateiname bezeichnet einen Ordner</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Unbekannter Fehler</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>information</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Do you want to exit program?</source>
        <translation>Programm beenden?</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>please input correct param!</source>
        <translation>Bitte gültige Parameter eingeben!</translation>
    </message>
    <message>
        <source>Are you sure you want to delete ellipsoid [%1]?</source>
        <translation>Ellipsoid [%1] wirklich löschen?</translation>
    </message>
    <message>
        <source>has same name as system, whether cover?</source>
        <translation>Ein eigenes Ellipsoid dieses Namens gibt es schon. Ersetzen?</translation>
    </message>
    <message>
        <source>new add ellipsoid name can&apos;t same as system!</source>
        <translation>Diesen Namen trägt schon ein mitgeliefertes Ellipsoid!</translation>
    </message>
    <message>
        <source>Edit Ellipsoid</source>
        <translation>Ellipsoide bearbeiten</translation>
    </message>
    <message>
        <source>Ellipsoid Name</source>
        <translation>Name des Ellipsoids</translation>
    </message>
    <message>
        <source>ellipsoid a(m)</source>
        <translation>Große Halbachse a (m)</translation>
    </message>
    <message>
        <source>ellipsoid f</source>
        <translation>Reziproke Abplattung 1/f</translation>
    </message>
    <message>
        <source>Are you sure you want to delete geoid [%1]?</source>
        <translation>Geoidmodell [%1] wirklich löschen?</translation>
    </message>
    <message>
        <source>has same file name, whether or not covered?</source>
        <translation>Ein eigenes Geoidmodell dieses Namens gibt es schon. Ersetzen?</translation>
    </message>
    <message>
        <source>new geoid name can&apos;t same with system name!</source>
        <translation>Diesen Namen trägt schon ein mitgeliefertes Geoidmodell!</translation>
    </message>
    <message>
        <source>New Geoid</source>
        <translation>Geoidmodelle</translation>
    </message>
    <message>
        <source>Geoid Name</source>
        <translation>Geoidmodell</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>Dateipfad</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Durchsuchen</translation>
    </message>
    <message>
        <source>selete file</source>
        <translation>Datei wählen</translation>
    </message>
    <message>
        <source>Geiod File(*.ggf *.vgf)</source>
        <translation>Geoiddatei (*.ggf *.vgf)</translation>
    </message>
    <message>
        <source>AddGeoid</source>
        <translation>Geoidmodelle bearbeiten</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>VornCoordSysMainWindow</name>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Data is changed!</source>
        <translation>Änderungen speichern?</translation>
    </message>
    <message>
        <source>Coordinate System Manager</source>
        <translation>Koordinatensystem-Verwaltung</translation>
    </message>
</context>
</TS>
