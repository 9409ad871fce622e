<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>DlgCoordParam</name>
    <message>
        <source>Origin</source>
        <translation>Origen</translation>
    </message>
    <message>
        <source>Standard parallels</source>
        <translation>Paralelos estándar</translation>
    </message>
    <message>
        <source>Checked point</source>
        <translation>Punto comprobado</translation>
    </message>
    <message>
        <source>Designed area</source>
        <translation>Zona de diseño</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Zona</translation>
    </message>
    <message>
        <source>What the map is around.</source>
        <translation>Centro del mapa.</translation>
    </message>
    <message>
        <source>Width of the area</source>
        <translation>Anchura de la zona</translation>
    </message>
    <message>
        <source>Side of the square area; the map shows all of it.</source>
        <translation>Lado de la zona cuadrada; el mapa la muestra entera.</translation>
    </message>
    <message>
        <source>Central meridian</source>
        <translation>Meridiano central</translation>
    </message>
    <message>
        <source>Standard parallel</source>
        <translation>Paralelo estándar</translation>
    </message>
    <message>
        <source>Outline of the area</source>
        <translation>Contorno de la zona</translation>
    </message>
    <message>
        <source>Easting, %1</source>
        <translation>Este, %1</translation>
    </message>
    <message>
        <source>Northing, %1</source>
        <translation>Norte, %1</translation>
    </message>
    <message>
        <source>From catalogue</source>
        <translation>Desde el catálogo</translation>
    </message>
    <message>
        <source>Words of the group or of the name</source>
        <translation>Palabras del grupo o del nombre</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Systems</source>
        <translation>Sistemas</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <translation>%1, en %2</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitud</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Ellipsoidal height</source>
        <translation>Altura elipsoidal</translation>
    </message>
    <message>
        <source>along the meridian %1
along the parallel %2</source>
        <translation>según el meridiano %1
según el paralelo %2</translation>
    </message>
    <message>
        <source>Copy as text</source>
        <translation>Copiar como texto</translation>
    </message>
    <message>
        <source>The system&apos;s own</source>
        <translation>El propio del sistema</translation>
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
        <translation>Este</translation>
    </message>
    <message>
        <source>Northing</source>
        <translation>Norte</translation>
    </message>
    <message>
        <source>Grid scale factor</source>
        <translation>Factor de escala puntual</translation>
    </message>
    <message>
        <source>Convergence</source>
        <translation>Convergencia</translation>
    </message>
    <message>
        <source>Combined factor</source>
        <translation>Factor combinado</translation>
    </message>
    <message>
        <source>Closing error</source>
        <translation>Error de cierre</translation>
    </message>
    <message>
        <source>A true azimuth is the grid bearing plus the convergence. Where the projection is not conformal, this holds along the meridian only.</source>
        <translation>El acimut geodésico es el acimut de cuadrícula más la convergencia de meridianos. Si la proyección no es conforme, esto solo vale a lo largo del meridiano.</translation>
    </message>
    <message>
        <source>Grid scale factor times R / (R + height): from a distance at that height to the grid.</source>
        <translation>Factor de escala puntual por R / (R + altura): de una distancia a esa altura a la de la cuadrícula.</translation>
    </message>
    <message>
        <source>How far the point is off when it is computed there and back: through the projection, and through the datum shift.</source>
        <translation>Cuánto se aparta el punto al calcularlo de ida y vuelta: por la proyección y por el cambio de datum.</translation>
    </message>
    <message>
        <source>the same: the system&apos;s datum is WGS 84</source>
        <translation>el mismo: el datum del sistema es WGS 84</translation>
    </message>
    <message>
        <source>unknown: the system defines no datum shift</source>
        <translation>desconocido: el sistema no define ningún cambio de datum</translation>
    </message>
    <message>
        <source>The registry&apos;s shifts move this point by %1 m.</source>
        <translation>Los cambios de datum del registro desplazan este punto %1 m.</translation>
    </message>
    <message>
        <source>The registry&apos;s shifts move this point by %1 to %2 m.</source>
        <translation>Los cambios de datum del registro desplazan este punto entre %1 y %2 m.</translation>
    </message>
    <message>
        <source>On WGS 84</source>
        <translation>En WGS 84</translation>
    </message>
    <message>
        <source>On the own datum</source>
        <translation>En el datum propio</translation>
    </message>
    <message>
        <source>The projection gives no result for this point.</source>
        <translation>La proyección no da resultado en este punto.</translation>
    </message>
    <message>
        <source>along the meridian %1
in other directions off by up to %2&quot;</source>
        <translation>según el meridiano %1
en otras direcciones, error de hasta %2&quot;</translation>
    </message>
    <message>
        <source>%1, datum shift %2</source>
        <translation>%1, cambio de datum %2</translation>
    </message>
    <message>
        <source>The projection is not reliable here.</source>
        <translation>La proyección no es fiable aquí.</translation>
    </message>
    <message>
        <source>The datum shift is not reliable here.</source>
        <translation>El cambio de datum no es fiable aquí.</translation>
    </message>
    <message>
        <source>Lengths of points in international feet (ft, 0.3048 m); the system&apos;s parameters in metres.</source>
        <translation>Medidas de los puntos en pies internacionales (ft, 0.3048 m); parámetros del sistema en metros.</translation>
    </message>
    <message>
        <source>Lengths of points in US survey feet (ftUS, 1200/3937 m); the system&apos;s parameters in metres.</source>
        <translation>Medidas de los puntos en pies topográficos de EE. UU. (ftUS, 1200/3937 m); parámetros del sistema en metros.</translation>
    </message>
    <message>
        <source>Lengths in metres (m).</source>
        <translation>Medidas en metros (m).</translation>
    </message>
    <message>
        <source>Check of a coordinate system against control points</source>
        <translation>Comprobación de un sistema de coordenadas con puntos de control</translation>
    </message>
    <message>
        <source>No point in use has both pairs of coordinates: nothing could be compared.</source>
        <translation>Ningún punto en uso tiene ambos pares de coordenadas: no se ha podido comparar nada.</translation>
    </message>
    <message numerus="yes">
        <source>All %n compared point(s) are within the tolerance of %1.</source>
        <translation>
            <numerusform>El %n punto comparado está dentro de la tolerancia de %1.</numerusform>
            <numerusform>Los %n puntos comparados están dentro de la tolerancia de %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 compared points are beyond the tolerance of %2.</source>
        <translation>
            <numerusform>%n de %1 puntos comparados está fuera de la tolerancia de %2.</numerusform>
            <numerusform>%n de %1 puntos comparados están fuera de la tolerancia de %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Computed minus given</source>
        <translation>Calculado menos dado</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>media</translation>
    </message>
    <message>
        <source>RMS</source>
        <translation>EMC</translation>
    </message>
    <message>
        <source>largest</source>
        <translation>máxima</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distancia</translation>
    </message>
    <message numerus="yes">
        <source>point(s) in the list</source>
        <translation>
            <numerusform>punto en la lista</numerusform>
            <numerusform>puntos en la lista</numerusform>
        </translation>
    </message>
    <message>
        <source>compared: in use, with both pairs of coordinates</source>
        <translation>comparados: en uso, con ambos pares de coordenadas</translation>
    </message>
    <message>
        <source>of these beyond the tolerance, the farthest first</source>
        <translation>de ellos, fuera de tolerancia, primero los más alejados</translation>
    </message>
    <message>
        <source>with both pairs left out of the figures by hand</source>
        <translation>con ambos pares, excluidos a mano de las estadísticas</translation>
    </message>
    <message>
        <source>with one pair only, the other computed</source>
        <translation>con un solo par, el otro calculado</translation>
    </message>
    <message>
        <source>not computed, as that was cancelled</source>
        <translation>sin calcular, por haberse cancelado</translation>
    </message>
    <message>
        <source>without a result; the list says why</source>
        <translation>sin resultado; la lista indica el motivo</translation>
    </message>
    <message>
        <source>with a name that another has</source>
        <translation>con un nombre repetido</translation>
    </message>
    <message>
        <source>Latitudes, longitudes and heights of the points are on the system&apos;s own datum.</source>
        <translation>Las latitudes, longitudes y alturas de los puntos están en el datum propio del sistema.</translation>
    </message>
    <message>
        <source>Latitudes, longitudes and heights of the points are on WGS 84, and brought to the system&apos;s datum by its shift.</source>
        <translation>Las latitudes, longitudes y alturas de los puntos están en WGS 84 y se han llevado al datum del sistema con su cambio de datum.</translation>
    </message>
    <message>
        <source>No. %1</source>
        <translation>N.º %1</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Points and residuals</source>
        <translation>Puntos y residuos</translation>
    </message>
    <message>
        <source>Vectors lead from the given place to the computed one, longer than life by the factor beside the scale bar. Red: beyond the tolerance. Grey: left out.</source>
        <translation>Los vectores van de la posición dada a la calculada, ampliados por el factor que figura junto a la escala gráfica. Rojo: fuera de tolerancia. Gris: excluido.</translation>
    </message>
    <message>
        <source>Linear distortion</source>
        <translation>Deformación lineal</translation>
    </message>
    <message>
        <source>On the map: %1 to %2 ppm (mm in a kilometre). Red: longer in the grid than on the ground; blue: shorter. Black rectangle: the area of the points.</source>
        <translation>En el mapa: de %1 a %2 ppm (mm por kilómetro). Rojo: más largo en la cuadrícula que en el terreno; azul: más corto. Rectángulo negro: zona de los puntos.</translation>
    </message>
    <message>
        <source>At the points&apos; mean height of %1 above the ellipsoid.</source>
        <translation>A la altura media de los puntos, %1 sobre el elipsoide.</translation>
    </message>
    <message>
        <source>At the height 0, as the points have none: what the projection alone does.</source>
        <translation>A la altura 0, ya que los puntos no tienen: solo el efecto de la proyección.</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Puntos</translation>
    </message>
    <message>
        <source>ΔE, ΔN: computed from latitude and longitude, minus given. *: beyond the tolerance. Slanted: computed from the other pair.</source>
        <translation>ΔE, ΔN: calculado con latitud y longitud, menos dado. *: fuera de tolerancia. Cursiva: calculado con el otro par.</translation>
    </message>
    <message>
        <source>The list has %1 points, too many for a report; here are those that matter most. &quot;Save...&quot; writes all of them as CSV.</source>
        <translation>La lista tiene %1 puntos, demasiados para un informe; aquí están los más importantes. «Guardar...» los escribe todos en CSV.</translation>
    </message>
    <message numerus="yes">
        <source>The %n point(s) that are farthest off, of %1 compared</source>
        <translation>
            <numerusform>El %n punto más alejado, de %1 comparados</numerusform>
            <numerusform>Los %n puntos más alejados, de %1 comparados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Points left out or without a result: the first %n of %1</source>
        <translation>
            <numerusform>Puntos excluidos o sin resultado: el primero (%n) de %1</numerusform>
            <numerusform>Puntos excluidos o sin resultado: los primeros %n de %1</numerusform>
        </translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Left out of the figures.</source>
        <translation>Excluido de las estadísticas.</translation>
    </message>
    <message>
        <source>From catalogue...</source>
        <translation>Desde el catálogo...</translation>
    </message>
    <message>
        <source>From registry...</source>
        <translation>Desde el registro...</translation>
    </message>
    <message>
        <source>With datum shifts</source>
        <translation>Con cambios de datum</translation>
    </message>
    <message>
        <source>Apart from the mean</source>
        <translation>Sin la media</translation>
    </message>
    <message>
        <source>Picture of the difference</source>
        <translation>Gráfico de la diferencia</translation>
    </message>
    <message>
        <source>The same place for both systems: through WGS 84 with both datum shifts, or else the same latitude and longitude.</source>
        <translation>El mismo lugar para ambos sistemas: a través de WGS 84 con los dos cambios de datum o, si no, a igual latitud y longitud.</translation>
    </message>
    <message>
        <source>The map shows what is left of the difference without its mean over the area, as after another false easting and northing.</source>
        <translation>El mapa muestra lo que queda de la diferencia sin su media en la zona, como con otro falso este y otro falso norte.</translation>
    </message>
    <message>
        <source>The difference is easting and northing of the shown system minus those of the other one, at the same place on the ground.</source>
        <translation>La diferencia es el este y el norte del sistema mostrado menos los del otro, en el mismo lugar del terreno.</translation>
    </message>
    <message>
        <source>Choose a system to compare with</source>
        <translation>Elija un sistema para comparar</translation>
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
        <translation>En el puntero</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Apart from it</source>
        <translation>Sin la media</translation>
    </message>
    <message>
        <source>The point of the page &quot;Point&quot;.</source>
        <translation>El punto de la pestaña «Punto».</translation>
    </message>
    <message>
        <source>Over the black square.</source>
        <translation>En el cuadrado negro.</translation>
    </message>
    <message>
        <source>What is left of the difference without its mean is no larger in the black square.</source>
        <translation>En el cuadrado negro, lo que queda de la diferencia sin su media no es mayor.</translation>
    </message>
    <message>
        <source>minus %1</source>
        <translation>menos %1</translation>
    </message>
    <message>
        <source>Easting and northing of the shown system minus those of %1, as it was when it was chosen, at the same place on the ground.</source>
        <translation>Este y norte del sistema mostrado menos los de %1, tal como era al elegirlo, en el mismo lugar del terreno.</translation>
    </message>
    <message>
        <source>One of the projections gives no result in this area.</source>
        <translation>Una de las proyecciones no da resultado en esta zona.</translation>
    </message>
    <message>
        <source>Neither system defines a datum shift: both count as on WGS 84.</source>
        <translation>Ninguno de los sistemas define un cambio de datum: ambos se toman como en WGS 84.</translation>
    </message>
    <message>
        <source>No datum shift is defined by %1: it counts as on WGS 84.</source>
        <translation>%1 no define ningún cambio de datum: se toma como en WGS 84.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>de %1 a %2</translation>
    </message>
    <message>
        <source>Take over</source>
        <translation>Adoptar</translation>
    </message>
    <message>
        <source>For this area</source>
        <translation>Para esta zona</translation>
    </message>
    <message>
        <source>For the point</source>
        <translation>Para el punto</translation>
    </message>
    <message>
        <source>Least distortion</source>
        <translation>Deformación mínima</translation>
    </message>
    <message>
        <source>Where the largest distortion at that height is to be smallest: in the square on the map, or at the checked point.</source>
        <translation>Dónde ha de ser mínima la deformación máxima a esa altura: en el cuadrado del mapa o en el punto comprobado.</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Diseño</translation>
    </message>
    <message>
        <source>Move the meridian</source>
        <translation>Mover el meridiano</translation>
    </message>
    <message>
        <source>Move the parallel</source>
        <translation>Mover el paralelo</translation>
    </message>
    <message>
        <source>There is nothing to propose here.</source>
        <translation>Aquí no hay nada que proponer.</translation>
    </message>
    <message>
        <source>This system has no scale factor to choose.</source>
        <translation>Este sistema no tiene un factor de escala que elegir.</translation>
    </message>
    <message>
        <source>The system is as good as it can be here.</source>
        <translation>El sistema ya es aquí el mejor posible.</translation>
    </message>
    <message>
        <source>Distortion in ppm: %1 → %2</source>
        <translation>Deformación en ppm: %1 → %2</translation>
    </message>
    <message>
        <source>Picture of the linear distortion</source>
        <translation>Gráfico de la deformación lineal</translation>
    </message>
    <message>
        <source>Mean ellipsoidal height of the ground; 0 shows the grid&apos;s own distortion.</source>
        <translation>Altura elipsoidal media del terreno; 0 muestra la deformación propia de la proyección.</translation>
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
        <translation>Señale un punto del mapa para ver su deformación.</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>What would meet the points best; what is not ticked is held.</source>
        <translation>Qué valores se ajustarían mejor a los puntos; lo no marcado queda fijo.</translation>
    </message>
    <message>
        <source>before</source>
        <translation>antes</translation>
    </message>
    <message>
        <source>after ± standard deviation</source>
        <translation>después ± desviación típica</translation>
    </message>
    <message>
        <source>Scale factor</source>
        <translation>Factor de escala</translation>
    </message>
    <message>
        <source>False easting</source>
        <translation>Falso este</translation>
    </message>
    <message>
        <source>False northing</source>
        <translation>Falso norte</translation>
    </message>
    <message>
        <source>RMS, largest</source>
        <translation>EMC, máxima</translation>
    </message>
    <message>
        <source>Misfit before</source>
        <translation>Desajuste antes</translation>
    </message>
    <message>
        <source>Misfit after</source>
        <translation>Desajuste después</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>Remainder</source>
        <translation>Resto</translation>
    </message>
    <message>
        <source>Diagnosis</source>
        <translation>Diagnóstico</translation>
    </message>
    <message>
        <source>%1 after</source>
        <translation>%1 después</translation>
    </message>
    <message>
        <source>Against the ground remain a rotation of %1 ± %2%3 and a scale of %4 ± %5 ppm.</source>
        <translation>Respecto al terreno queda una rotación de %1 ± %2%3 y una escala de %4 ± %5 ppm.</translation>
    </message>
    <message>
        <source>(not used)</source>
        <translation>(no se usa)</translation>
    </message>
    <message>
        <source>Decimal comma</source>
        <translation>Coma decimal</translation>
    </message>
    <message>
        <source>First line is a heading</source>
        <translation>La primera línea es cabecera</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulador</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Coma</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Punto y coma</translation>
    </message>
    <message>
        <source>Blanks</source>
        <translation>Espacios</translation>
    </message>
    <message>
        <source>Columns parted by</source>
        <translation>Columnas separadas por</translation>
    </message>
    <message>
        <source>metres</source>
        <translation>metros</translation>
    </message>
    <message>
        <source>international feet</source>
        <translation>pies internacionales</translation>
    </message>
    <message>
        <source>US survey feet</source>
        <translation>pies topográficos (EE. UU.)</translation>
    </message>
    <message>
        <source>Lengths in</source>
        <translation>Medidas en</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Columna %1</translation>
    </message>
    <message>
        <source>Columns of one kind belong together: degrees, minutes and seconds.</source>
        <translation>Las columnas de un mismo tipo van juntas: grados, minutos y segundos.</translation>
    </message>
    <message>
        <source>Say which columns are latitude and longitude, or easting and northing.</source>
        <translation>Indique qué columnas son latitud y longitud, o este y norte.</translation>
    </message>
    <message numerus="yes">
        <source>%n point(s), %1 with both pairs</source>
        <translation>
            <numerusform>%n punto, %1 con ambos pares</numerusform>
            <numerusform>%n puntos, %1 con ambos pares</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left out</source>
        <translation>
            <numerusform>%n excluido</numerusform>
            <numerusform>%n excluidos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 beyond the tolerance</source>
        <translation>%1 fuera de tolerancia</translation>
    </message>
    <message>
        <source>%1 without a result</source>
        <translation>%1 sin resultado</translation>
    </message>
    <message>
        <source>%1 with a name that another has</source>
        <translation>%1 con un nombre repetido</translation>
    </message>
    <message>
        <source>Paste, open or type points.</source>
        <translation>Pegue, abra o escriba puntos.</translation>
    </message>
    <message>
        <source>Out of range.</source>
        <translation>Fuera de rango.</translation>
    </message>
    <message>
        <source>Fitted ΔE</source>
        <translation>ΔE ajustado</translation>
    </message>
    <message>
        <source>Fitted ΔN</source>
        <translation>ΔN ajustado</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Observación</translation>
    </message>
    <message>
        <source>A point without a check mark is left out of the statistics.</source>
        <translation>Un punto sin marca queda excluido de las estadísticas.</translation>
    </message>
    <message>
        <source>Ellipsoidal height; 0 where there is none.</source>
        <translation>Altura elipsoidal; 0 si no hay.</translation>
    </message>
    <message>
        <source>Slanted: computed from the other pair.</source>
        <translation>Cursiva: calculado con el otro par.</translation>
    </message>
    <message>
        <source>What the fit would leave.</source>
        <translation>Lo que dejaría el ajuste.</translation>
    </message>
    <message>
        <source>Computed from latitude and longitude, minus given.</source>
        <translation>Calculado con latitud y longitud, menos dado.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Abrir...</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Guardar...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Next marked</source>
        <translation>Siguiente marcado</translation>
    </message>
    <message>
        <source>The next point beyond the tolerance, or row with a remark</source>
        <translation>El siguiente punto fuera de tolerancia o fila con observación</translation>
    </message>
    <message>
        <source>Report...</source>
        <translation>Informe...</translation>
    </message>
    <message>
        <source>Writes the check as a document to file with the job.</source>
        <translation>Escribe la comprobación como documento para el expediente del trabajo.</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolerancia</translation>
    </message>
    <message>
        <source>Points that are farther off are marked.</source>
        <translation>Se marcan los puntos que la superan.</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>Propio</translation>
    </message>
    <message>
        <source>Datum of latitude, longitude and height: the system&apos;s own, or WGS 84</source>
        <translation>Datum de latitud, longitud y altura: el propio del sistema o WGS 84</translation>
    </message>
    <message>
        <source>Which false origin and scale factor would meet the points best.</source>
        <translation>Qué falso origen y factor de escala se ajustarían mejor a los puntos.</translation>
    </message>
    <message>
        <source>All is written: that can&apos;t be cancelled any more.</source>
        <translation>Ya está todo escrito: no se puede cancelar.</translation>
    </message>
    <message>
        <source>Cancelled: %1</source>
        <translation>Cancelado: %1</translation>
    </message>
    <message>
        <source>Open points</source>
        <translation>Abrir puntos</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>No se puede leer %1: %2</translation>
    </message>
    <message>
        <source>The clipboard</source>
        <translation>El portapapeles</translation>
    </message>
    <message>
        <source>%1 has too many points; nothing of it is taken.</source>
        <translation>%1 tiene demasiados puntos; no se toma ninguno.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n row(s) read.</source>
        <translation>
            <numerusform>%1: %n fila leída.</numerusform>
            <numerusform>%1: %n filas leídas.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 can&apos;t be read to its end: %2</source>
        <translation>No se puede leer %1 hasta el final: %2</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lectura</translation>
    </message>
    <message>
        <source>Computing</source>
        <translation>Cálculo</translation>
    </message>
    <message>
        <source>Comparing names</source>
        <translation>Comparación de nombres</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Dibujo</translation>
    </message>
    <message>
        <source>Counting</source>
        <translation>Recuento</translation>
    </message>
    <message>
        <source>Point at the picture for a point&apos;s name.</source>
        <translation>Señale el gráfico para ver el nombre de un punto.</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>Fila %1</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Only the first %1 rows are copied. Save all as CSV.</source>
        <translation>Solo se copian las primeras %1 filas. Guárdelas todas en CSV.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied.</source>
        <translation>
            <numerusform>%n fila copiada.</numerusform>
            <numerusform>%n filas copiadas.</numerusform>
        </translation>
    </message>
    <message>
        <source>CSV as shown</source>
        <translation>CSV como se muestra</translation>
    </message>
    <message>
        <source>CSV with all digits</source>
        <translation>CSV con todos los dígitos</translation>
    </message>
    <message>
        <source>Save points</source>
        <translation>Guardar puntos</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Guardado</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n row(s) saved.</source>
        <translation>
            <numerusform>%1: %n fila guardada.</numerusform>
            <numerusform>%1: %n filas guardadas.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 can&apos;t be saved: %2</source>
        <translation>No se puede guardar %1: %2</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>%1: report saved.</source>
        <translation>%1: informe guardado.</translation>
    </message>
    <message>
        <source>No row is selected.</source>
        <translation>No hay ninguna fila seleccionada.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) deleted; Ctrl+Z undoes that.</source>
        <translation>
            <numerusform>%n fila eliminada; Ctrl+Z lo deshace.</numerusform>
            <numerusform>%n filas eliminadas; Ctrl+Z lo deshace.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>No hay nada que deshacer.</translation>
    </message>
    <message>
        <source>Undone: the points are as they were before.</source>
        <translation>Deshecho: los puntos están como antes.</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n point(s) from the table?</source>
        <translation>
            <numerusform>¿Quitar el único punto de la tabla?</numerusform>
            <numerusform>¿Quitar los %n puntos de la tabla?</numerusform>
        </translation>
    </message>
    <message>
        <source>All points are removed; Ctrl+Z undoes that.</source>
        <translation>Se han quitado todos los puntos; Ctrl+Z lo deshace.</translation>
    </message>
    <message>
        <source>All is within the tolerance and without a remark.</source>
        <translation>Todo está dentro de tolerancia y sin observaciones.</translation>
    </message>
    <message>
        <source>Picture of the points</source>
        <translation>Gráfico de los puntos</translation>
    </message>
    <message>
        <source>HTML, one file with its pictures</source>
        <translation>HTML, un archivo con sus imágenes</translation>
    </message>
    <message>
        <source>Save report</source>
        <translation>Guardar informe</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>no document could be made</source>
        <translation>no se pudo crear el documento</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Comprobación</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punto</translation>
    </message>
    <message>
        <source>Distortion</source>
        <translation>Deformación</translation>
    </message>
    <message>
        <source>Show angles in</source>
        <translation>Mostrar ángulos en</translation>
    </message>
    <message>
        <source>A fit needs points with latitude, longitude, easting and northing.</source>
        <translation>Un ajuste necesita puntos con latitud, longitud, este y norte.</translation>
    </message>
    <message>
        <source>A fit takes %1 points at most: leave some out.</source>
        <translation>Un ajuste admite %1 puntos como máximo: excluya algunos.</translation>
    </message>
    <message>
        <source>The projection gives no result at one of the points.</source>
        <translation>La proyección no da resultado en uno de los puntos.</translation>
    </message>
    <message>
        <source>The points do not determine these values: hold one of them, or add points.</source>
        <translation>Los puntos no determinan estos valores: deje fijo uno de ellos o añada puntos.</translation>
    </message>
    <message>
        <source>east</source>
        <translation>hacia el este</translation>
    </message>
    <message>
        <source>north</source>
        <translation>hacia el norte</translation>
    </message>
    <message>
        <source>west</source>
        <translation>hacia el oeste</translation>
    </message>
    <message>
        <source>south</source>
        <translation>hacia el sur</translation>
    </message>
    <message>
        <source>Easting and northing are swapped.</source>
        <translation>El este y el norte están intercambiados.</translation>
    </message>
    <message>
        <source>The given eastings count %1, the northings %2.</source>
        <translation>Los estes dados crecen %1; los nortes, %2.</translation>
    </message>
    <message>
        <source>The given eastings and northings are in feet.</source>
        <translation>Los estes y nortes dados están en pies.</translation>
    </message>
    <message>
        <source>The given eastings and northings are metres that were taken for feet.</source>
        <translation>Los estes y nortes dados son metros que se tomaron por pies.</translation>
    </message>
    <message>
        <source>The given grid is turned by %1° against the computed one</source>
        <translation>La cuadrícula dada está girada %1° respecto a la calculada</translation>
    </message>
    <message>
        <source>The points are of another zone: its central meridian is %1°.</source>
        <translation>Los puntos son de otro huso: su meridiano central es %1°.</translation>
    </message>
    <message>
        <source>%1, as by a central meridian of %2°.</source>
        <translation>%1, como con un meridiano central de %2°.</translation>
    </message>
    <message>
        <source>There is nothing in it.</source>
        <translation>No contiene nada.</translation>
    </message>
    <message>
        <source>It is no text. Save a table as CSV first.</source>
        <translation>No es texto. Guarde antes la tabla como CSV.</translation>
    </message>
    <message>
        <source>latitude</source>
        <translation>latitud</translation>
    </message>
    <message>
        <source>longitude</source>
        <translation>longitud</translation>
    </message>
    <message>
        <source>height</source>
        <translation>altura</translation>
    </message>
    <message>
        <source>easting</source>
        <translation>este</translation>
    </message>
    <message>
        <source>northing</source>
        <translation>norte</translation>
    </message>
    <message>
        <source>The line is too long for a point; its beginning is kept.</source>
        <translation>La línea es demasiado larga para un punto; se conserva su comienzo.</translation>
    </message>
    <message>
        <source>Can&apos;t be read: %1.</source>
        <translation>No se puede leer: %1.</translation>
    </message>
    <message>
        <source>Out of range: %1.</source>
        <translation>Fuera de rango: %1.</translation>
    </message>
    <message>
        <source>There are no coordinates.</source>
        <translation>No hay coordenadas.</translation>
    </message>
    <message>
        <source>Missing: %1.</source>
        <translation>Falta: %1.</translation>
    </message>
    <message>
        <source>The system defines no datum shift.</source>
        <translation>El sistema no define ningún cambio de datum.</translation>
    </message>
    <message>
        <source>The name occurs more than once.</source>
        <translation>El nombre aparece más de una vez.</translation>
    </message>
    <message>
        <source>Line: %1</source>
        <translation>Línea: %1</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Usado</translation>
    </message>
    <message>
        <source>Seven parameters need three points or more on both datums.</source>
        <translation>Siete parámetros requieren tres puntos o más en ambos datums.</translation>
    </message>
    <message>
        <source>Three parameters need one point or more on both datums.</source>
        <translation>Tres parámetros requieren un punto o más en ambos datums.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; are the same point: leave one of them out.</source>
        <translation>«%1» y «%2» son el mismo punto: excluya uno de ellos.</translation>
    </message>
    <message>
        <source>The points lie on a line, around which they leave the rotation open. Add a point beside the line, or take three parameters.</source>
        <translation>Los puntos están en una recta, en torno a la cual la rotación queda indeterminada. Añada un punto fuera de la recta o tome tres parámetros.</translation>
    </message>
    <message>
        <source>No datum shift is as large as these points would have it. Are both places of each the same point, on the right datum?</source>
        <translation>Ningún cambio de datum es tan grande como resultaría de estos puntos. ¿Son ambas posiciones de cada uno del mismo punto y en el datum correcto?</translation>
    </message>
    <message>
        <source>The area is too small to tell the translations from rotations and scale (correlation %1): the values mean nothing one by one, and hold within the area only. Three parameters are recommended if what they leave will do: a standard deviation of %2 m, against %3 m of seven.</source>
        <translation>La zona es demasiado pequeña para distinguir las traslaciones de las rotaciones y la escala (correlación %1): los valores no significan nada por separado y valen solo dentro de la zona. Se recomiendan tres parámetros si basta con lo que dejan: una desviación típica de %2 m, frente a %3 m con siete.</translation>
    </message>
    <message>
        <source>No projection: these values make none.</source>
        <translation>No hay proyección: estos valores no la definen.</translation>
    </message>
    <message>
        <source>Rotations in the position-vector convention (EPSG 9606, PROJ towgs84). Figures published in the coordinate-frame convention (EPSG 9607): type them as they are, then reverse their signs.</source>
        <translation>Rotaciones según el convenio de vector de posición (EPSG 9606, PROJ towgs84). Valores publicados según el convenio de marco de coordenadas (EPSG 9607): escríbalos tal cual y después invierta sus signos.</translation>
    </message>
    <message>
        <source>Reverse rotation signs</source>
        <translation>Invertir signos de rotación</translation>
    </message>
    <message>
        <source>From points...</source>
        <translation>Desde puntos...</translation>
    </message>
    <message>
        <source>Stands in exported definitions; nothing is computed from it.</source>
        <translation>Figura en las definiciones exportadas; con él no se calcula nada.</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>Shift to WGS 84</source>
        <translation>Cambio a WGS 84</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Seven parameters (three: the rest 0)</source>
        <translation>Siete parámetros (tres: el resto 0)</translation>
    </message>
    <message>
        <source>Estimates the shift from points known on both datums.</source>
        <translation>Estima el cambio de datum con puntos conocidos en ambos datums.</translation>
    </message>
    <message>
        <source>Datum shift</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Without a shift, coordinates on WGS 84 are unknown.</source>
        <translation>Sin cambio de datum se desconocen las coordenadas en WGS 84.</translation>
    </message>
    <message>
        <source>This kind of shift is unknown here; it is kept as it is.</source>
        <translation>Aquí no se conoce este tipo de cambio de datum; se conserva tal cual.</translation>
    </message>
    <message>
        <source>The signs of all three rotations are reversed.</source>
        <translation>Se han invertido los signos de las tres rotaciones.</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>Definición</translation>
    </message>
    <message>
        <source>PROJ definition</source>
        <translation>Definición PROJ</translation>
    </message>
    <message>
        <source>WKT dialect</source>
        <translation>Dialecto WKT</translation>
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
        <translation>Con identificador</translation>
    </message>
    <message>
        <source>Save as .prj</source>
        <translation>Guardar como .prj</translation>
    </message>
    <message>
        <source>Save group...</source>
        <translation>Guardar grupo...</translation>
    </message>
    <message>
        <source>WKT</source>
        <translation>WKT</translation>
    </message>
    <message>
        <source>Where from</source>
        <translation>Procedencia</translation>
    </message>
    <message>
        <source>From text...</source>
        <translation>Desde texto...</translation>
    </message>
    <message>
        <source>This form can&apos;t express the system.</source>
        <translation>Este formato no puede expresar el sistema.</translation>
    </message>
    <message>
        <source>This form can&apos;t carry the identifier.</source>
        <translation>Este formato no puede llevar el identificador.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>The file can&apos;t be written: %1</source>
        <translation>No se puede escribir el archivo: %1</translation>
    </message>
    <message>
        <source>No coordinate system</source>
        <translation>Ningún sistema de coordenadas</translation>
    </message>
    <message>
        <source>%1 – choose a coordinate system in the tree</source>
        <translation>%1 – elija un sistema de coordenadas en el árbol</translation>
    </message>
    <message>
        <source>Forward to the edited values</source>
        <translation>Recuperar los valores editados</translation>
    </message>
    <message>
        <source>Back to the values before</source>
        <translation>Volver a los valores anteriores</translation>
    </message>
    <message>
        <source>Ellipsoid</source>
        <translation>Elipsoide</translation>
    </message>
    <message>
        <source>Semi-minor axis b</source>
        <translation>Semieje menor b</translation>
    </message>
    <message>
        <source>Eccentricity e</source>
        <translation>Excentricidad e</translation>
    </message>
    <message>
        <source>Choose an ellipsoid.</source>
        <translation>Elija un elipsoide.</translation>
    </message>
    <message>
        <source>Not in the list of ellipsoids.</source>
        <translation>No está en la lista de elipsoides.</translation>
    </message>
    <message>
        <source>The figures differ from the list&apos;s ellipsoid of this name.</source>
        <translation>Los valores difieren de los del elipsoide de este nombre en la lista.</translation>
    </message>
    <message>
        <source>Decimal degrees</source>
        <translation>Grados decimales</translation>
    </message>
    <message>
        <source>Degrees, minutes, seconds</source>
        <translation>Grados, minutos, segundos</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
    <message>
        <source>Metre</source>
        <translation>Metro</translation>
    </message>
    <message>
        <source>International foot, 0.3048 m</source>
        <translation>Pie internacional, 0.3048 m</translation>
    </message>
    <message>
        <source>US survey foot, 1200/3937 m</source>
        <translation>Pie topográfico (EE. UU.), 1200/3937 m</translation>
    </message>
    <message>
        <source>Lengths in metres (m), international feet (ft) or US survey feet (ftUS)</source>
        <translation>Medidas en metros (m), pies internacionales (ft) o pies topográficos de EE. UU. (ftUS)</translation>
    </message>
    <message>
        <source>From text</source>
        <translation>Desde texto</translation>
    </message>
    <message>
        <source>Paste or type WKT, a PROJ definition, PROJJSON, or a code as EPSG:25832.</source>
        <translation>Pegue o escriba WKT, una definición PROJ, PROJJSON o un código como EPSG:25832.</translation>
    </message>
    <message>
        <source>Understood</source>
        <translation>Interpretación</translation>
    </message>
    <message>
        <source>Understood:</source>
        <translation>Interpretación:</translation>
    </message>
    <message>
        <source>Geoid model</source>
        <translation>Modelo de geoide</translation>
    </message>
    <message>
        <source>Model file</source>
        <translation>Archivo del modelo</translation>
    </message>
    <message>
        <source>Model ellipsoid</source>
        <translation>Elipsoide del modelo</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(ninguno)</translation>
    </message>
    <message>
        <source>Not in the list of geoid models.</source>
        <translation>No está en la lista de modelos de geoide.</translation>
    </message>
    <message>
        <source>The model refers to another ellipsoid than the system.</source>
        <translation>El modelo se refiere a otro elipsoide que el sistema.</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Método</translation>
    </message>
    <message>
        <source>Projection method</source>
        <translation>Método de proyección</translation>
    </message>
    <message>
        <source>Choose the method</source>
        <translation>Elija el método</translation>
    </message>
    <message>
        <source>Projection</source>
        <translation>Proyección</translation>
    </message>
    <message>
        <source>Still to choose.</source>
        <translation>Por elegir.</translation>
    </message>
    <message>
        <source>A latitude goes with N or S.</source>
        <translation>Una latitud lleva N o S.</translation>
    </message>
    <message>
        <source>A longitude goes with E or W.</source>
        <translation>Una longitud lleva E o W.</translation>
    </message>
    <message>
        <source>An azimuth goes without a letter.</source>
        <translation>Un acimut no lleva letra.</translation>
    </message>
    <message>
        <source>Use a decimal point, not a comma.</source>
        <translation>Use punto decimal, no coma.</translation>
    </message>
    <message>
        <source>Not an angle. Examples: 7.5, 7 30 00, 7°30&apos;00&quot;.</source>
        <translation>No es un ángulo. Ejemplos: 7.5, 7 30 00, 7°30&apos;00&quot;.</translation>
    </message>
    <message>
        <source>Only the last part may have decimals.</source>
        <translation>Solo la última parte puede tener decimales.</translation>
    </message>
    <message>
        <source>Minutes must be less than 60.</source>
        <translation>Los minutos deben ser menos de 60.</translation>
    </message>
    <message>
        <source>Seconds must be less than 60.</source>
        <translation>Los segundos deben ser menos de 60.</translation>
    </message>
    <message>
        <source>Give either a sign or a letter.</source>
        <translation>Indique un signo o una letra, no ambos.</translation>
    </message>
    <message>
        <source>Semi-major axis a</source>
        <translation>Semieje mayor a</translation>
    </message>
    <message>
        <source>Inverse flattening 1/f</source>
        <translation>Aplanamiento inverso 1/f</translation>
    </message>
    <message>
        <source>Translation X</source>
        <translation>Traslación X</translation>
    </message>
    <message>
        <source>Translation Y</source>
        <translation>Traslación Y</translation>
    </message>
    <message>
        <source>Translation Z</source>
        <translation>Traslación Z</translation>
    </message>
    <message>
        <source>Rotation X</source>
        <translation>Rotación X</translation>
    </message>
    <message>
        <source>Rotation Y</source>
        <translation>Rotación Y</translation>
    </message>
    <message>
        <source>Rotation Z</source>
        <translation>Rotación Z</translation>
    </message>
    <message>
        <source>Scale difference</source>
        <translation>Diferencia de escala</translation>
    </message>
    <message>
        <source>A sphere.</source>
        <translation>Una esfera.</translation>
    </message>
    <message>
        <source>Unusual for the Earth.</source>
        <translation>Inusual para la Tierra.</translation>
    </message>
    <message>
        <source>Unusually large.</source>
        <translation>Inusualmente grande.</translation>
    </message>
    <message>
        <source>Nothing can be computed: the projection module is not installed.</source>
        <translation>No se puede calcular nada: el módulo de proyección no está instalado.</translation>
    </message>
    <message>
        <source>These parameters give no projection that can be computed.</source>
        <translation>Estos parámetros no dan una proyección que pueda calcularse.</translation>
    </message>
    <message>
        <source>The model names no file.</source>
        <translation>El modelo no indica ningún archivo.</translation>
    </message>
    <message>
        <source>Not in the folder of geoid models.</source>
        <translation>No está en la carpeta de modelos de geoide.</translation>
    </message>
    <message>
        <source>The folder of geoid models has &quot;%1&quot; instead.</source>
        <translation>La carpeta de modelos de geoide contiene en su lugar «%1».</translation>
    </message>
    <message>
        <source>Not a file.</source>
        <translation>No es un archivo.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <source>Not a length in %1 with a decimal point.</source>
        <translation>No es una medida en %1 con punto decimal.</translation>
    </message>
    <message>
        <source>Allowed: 0 (sphere), or more than 1.</source>
        <translation>Permitido: 0 (esfera) o más de 1.</translation>
    </message>
    <message>
        <source>Allowed: between %1 and %2.</source>
        <translation>Permitido: entre %1 y %2.</translation>
    </message>
    <message>
        <source>Allowed: ±%1.</source>
        <translation>Permitido: ±%1.</translation>
    </message>
    <message>
        <source>Allowed: %1 to %2.</source>
        <translation>Permitido: de %1 a %2.</translation>
    </message>
    <message>
        <source>A value is needed.</source>
        <translation>Se necesita un valor.</translation>
    </message>
    <message>
        <source>Only digits and a decimal point.</source>
        <translation>Solo cifras y un punto decimal.</translation>
    </message>
    <message>
        <source>Datum shift to WGS 84: none</source>
        <translation>Cambio de datum a WGS 84: ninguno</translation>
    </message>
    <message>
        <source>Datum shift to WGS 84: %1</source>
        <translation>Cambio de datum a WGS 84: %1</translation>
    </message>
    <message>
        <source>Pasted text, %1</source>
        <translation>Texto pegado, %1</translation>
    </message>
    <message>
        <source>The text counts in %1, the record in metres.</source>
        <translation>El texto cuenta en %1; el sistema mostrado, en metros.</translation>
    </message>
    <message>
        <source>Its datum shift is by grids, or of another kind, and is left out.</source>
        <translation>Su cambio de datum es por rejillas o de otro tipo, y se omite.</translation>
    </message>
    <message>
        <source>Its heights are left out.</source>
        <translation>Sus alturas se omiten.</translation>
    </message>
    <message>
        <source>The registry has withdrawn it.</source>
        <translation>El registro lo ha retirado.</translation>
    </message>
    <message>
        <source>(line %1, column %2)</source>
        <translation>(línea %1, columna %2)</translation>
    </message>
    <message>
        <source>Ellipsoid: %1, a %2 m, 1/f %3</source>
        <translation>Elipsoide: %1, a %2 m, 1/f %3</translation>
    </message>
    <message>
        <source>Datum: %1</source>
        <translation>Datum: %1</translation>
    </message>
    <message>
        <source>not named</source>
        <translation>sin nombre</translation>
    </message>
    <message>
        <source>No projection: latitudes of the points equal, or the first 0.</source>
        <translation>No hay proyección: latitudes de los puntos iguales, o la primera 0.</translation>
    </message>
    <message>
        <source>No projection: the standard parallels cancel out.</source>
        <translation>No hay proyección: los paralelos estándar se anulan entre sí.</translation>
    </message>
    <message>
        <source>No projection yet: the system has no ellipsoid.</source>
        <translation>Aún no hay proyección: el sistema no tiene elipsoide.</translation>
    </message>
    <message>
        <source>No projection yet: choose the method.</source>
        <translation>Aún no hay proyección: elija el método.</translation>
    </message>
    <message>
        <source>No projection: the method &quot;%1&quot; is unknown.</source>
        <translation>No hay proyección: el método «%1» es desconocido.</translation>
    </message>
    <message>
        <source>No projection: the definition fits none of the methods.</source>
        <translation>No hay proyección: la definición no corresponde a ninguno de los métodos.</translation>
    </message>
    <message>
        <source>No projection: &quot;%1&quot; is missing or wrong.</source>
        <translation>No hay proyección: «%1» falta o es erróneo.</translation>
    </message>
    <message>
        <source>No projection: a standard parallel needs the scale factor 1.</source>
        <translation>No hay proyección: un paralelo estándar exige el factor de escala 1.</translation>
    </message>
    <message>
        <source>No projection: the scale factor is missing.</source>
        <translation>No hay proyección: falta el factor de escala.</translation>
    </message>
    <message>
        <source>Must be 1: the standard parallel sets the scale.</source>
        <translation>Debe ser 1: la escala la fija el paralelo estándar.</translation>
    </message>
    <message>
        <source>Unusual: scale factors lie close to 1.</source>
        <translation>Inusual: los factores de escala son cercanos a 1.</translation>
    </message>
    <message>
        <source>Without effect: the origin is no pole.</source>
        <translation>Sin efecto: el origen no es un polo.</translation>
    </message>
    <message>
        <source>With 0° this is the plain Mercator projection.</source>
        <translation>Con 0° es la proyección Mercator simple.</translation>
    </message>
    <message>
        <source>Usually equal to the latitude of origin.</source>
        <translation>Suele ser igual a la latitud de origen.</translation>
    </message>
    <message>
        <source>The standard parallels nearly cancel out.</source>
        <translation>Los paralelos estándar casi se anulan entre sí.</translation>
    </message>
    <message>
        <source>Gives the line of %1°. For the line of this azimuth, type %2°.</source>
        <translation>Da la línea de %1°. Para la línea de este acimut, escriba %2°.</translation>
    </message>
    <message>
        <source>Zone %1 of UTM has the central meridian %2°.</source>
        <translation>El huso %1 de UTM tiene el meridiano central %2°.</translation>
    </message>
    <message>
        <source>Does not fit zone %1 of the false easting.</source>
        <translation>No corresponde al huso %1 del falso este.</translation>
    </message>
    <message>
        <source>Latitude of origin</source>
        <translation>Latitud de origen</translation>
    </message>
    <message>
        <source>Latitude of centre</source>
        <translation>Latitud del centro</translation>
    </message>
    <message>
        <source>Longitude of origin</source>
        <translation>Longitud de origen</translation>
    </message>
    <message>
        <source>Longitude of centre</source>
        <translation>Longitud del centro</translation>
    </message>
    <message>
        <source>Latitude of point 1</source>
        <translation>Latitud del punto 1</translation>
    </message>
    <message>
        <source>Longitude of point 1</source>
        <translation>Longitud del punto 1</translation>
    </message>
    <message>
        <source>Latitude of point 2</source>
        <translation>Latitud del punto 2</translation>
    </message>
    <message>
        <source>Longitude of point 2</source>
        <translation>Longitud del punto 2</translation>
    </message>
    <message>
        <source>Azimuth of the line</source>
        <translation>Acimut de la línea</translation>
    </message>
    <message>
        <source>Standard parallel 1</source>
        <translation>Paralelo estándar 1</translation>
    </message>
    <message>
        <source>Standard parallel 2</source>
        <translation>Paralelo estándar 2</translation>
    </message>
    <message>
        <source>Easting at centre</source>
        <translation>Este en el centro</translation>
    </message>
    <message>
        <source>Northing at centre</source>
        <translation>Norte en el centro</translation>
    </message>
    <message>
        <source>Gauss-Krüger (scale factor 1)</source>
        <translation>Gauss-Krüger (factor de escala 1)</translation>
    </message>
    <message>
        <source>Transverse Mercator</source>
        <translation>Transversa de Mercator</translation>
    </message>
    <message>
        <source>Mercator</source>
        <translation>Mercator</translation>
    </message>
    <message>
        <source>Mercator (standard parallel)</source>
        <translation>Mercator (paralelo estándar)</translation>
    </message>
    <message>
        <source>Oblique Mercator (azimuth)</source>
        <translation>Oblicua de Mercator (acimut)</translation>
    </message>
    <message>
        <source>Stereographic</source>
        <translation>Estereográfica</translation>
    </message>
    <message>
        <source>Oblique Stereographic (double)</source>
        <translation>Estereográfica oblicua (doble)</translation>
    </message>
    <message>
        <source>Lambert Conic Conformal (1SP)</source>
        <translation>Cónica conforme de Lambert (1SP)</translation>
    </message>
    <message>
        <source>Lambert Conic Conformal (2SP)</source>
        <translation>Cónica conforme de Lambert (2SP)</translation>
    </message>
    <message>
        <source>Oblique Mercator (two points)</source>
        <translation>Oblicua de Mercator (dos puntos)</translation>
    </message>
    <message>
        <source>Cassini-Soldner</source>
        <translation>Cassini-Soldner</translation>
    </message>
    <message>
        <source>the name</source>
        <translation>el nombre</translation>
    </message>
    <message>
        <source>the ellipsoid&apos;s name</source>
        <translation>el nombre del elipsoide</translation>
    </message>
    <message>
        <source>the projection method</source>
        <translation>el método de proyección</translation>
    </message>
    <message>
        <source>the datum shift</source>
        <translation>el cambio de datum</translation>
    </message>
    <message>
        <source>This form can&apos;t be imported again.</source>
        <translation>Este formato no se puede volver a importar.</translation>
    </message>
    <message>
        <source>Does not come back with an import of this form: %1.</source>
        <translation>No se recupera al importar este formato: %1.</translation>
    </message>
    <message>
        <source>Other software may count easting and northing from the natural origin.</source>
        <translation>Otro software puede contar el este y el norte desde el origen natural.</translation>
    </message>
    <message>
        <source>Position-vector convention (EPSG 9606, PROJ towgs84)</source>
        <translation>Convenio de vector de posición (EPSG 9606, PROJ towgs84)</translation>
    </message>
    <message>
        <source>of an unknown kind</source>
        <translation>de tipo desconocido</translation>
    </message>
    <message>
        <source>A geographic system: latitude and longitude, without a projection.</source>
        <translation>Un sistema geográfico: latitud y longitud, sin proyección.</translation>
    </message>
    <message>
        <source>A geocentric system: X, Y and Z, without a projection.</source>
        <translation>Un sistema geocéntrico: X, Y y Z, sin proyección.</translation>
    </message>
    <message>
        <source>A system of heights, without a projection.</source>
        <translation>Un sistema de alturas, sin proyección.</translation>
    </message>
    <message>
        <source>A local system, without a place on the Earth.</source>
        <translation>Un sistema local, sin situación en la Tierra.</translation>
    </message>
    <message>
        <source>No system that is projected.</source>
        <translation>No es un sistema proyectado.</translation>
    </message>
    <message>
        <source>None of the methods holds this projection exactly: %1.</source>
        <translation>Ninguno de los métodos contiene exactamente esta proyección: %1.</translation>
    </message>
    <message>
        <source>The axes do not point east and north, but: %1.</source>
        <translation>Los ejes no apuntan al este y al norte, sino: %1.</translation>
    </message>
    <message>
        <source>The grid is turned by %1°, not by the azimuth of the line, %2°.</source>
        <translation>La cuadrícula está girada %1°, y no el acimut de la línea, %2°.</translation>
    </message>
    <message>
        <source>With the azimuth 90° easting and northing can&apos;t count from the natural origin.</source>
        <translation>Con el acimut 90° el este y el norte no pueden contarse desde el origen natural.</translation>
    </message>
    <message>
        <source>The standard parallel, %1°, is not the latitude of origin, %2°, as this method has it.</source>
        <translation>El paralelo estándar, %1°, no es la latitud de origen, %2°, como en este método.</translation>
    </message>
    <message>
        <source>A polar projection that names no pole, or does not say its scale in one way.</source>
        <translation>Una proyección polar que no indica el polo o no expresa su escala de una sola manera.</translation>
    </message>
    <message>
        <source>A parameter is missing: %1.</source>
        <translation>Falta un parámetro: %1.</translation>
    </message>
    <message>
        <source>A parameter is unknown: %1.</source>
        <translation>Parámetro desconocido: %1.</translation>
    </message>
    <message>
        <source>A parameter does not belong to the method: %1.</source>
        <translation>Un parámetro no pertenece al método: %1.</translation>
    </message>
    <message>
        <source>A parameter has two values: %1.</source>
        <translation>Un parámetro tiene dos valores: %1.</translation>
    </message>
    <message>
        <source>A value is no number, or out of range: %1.</source>
        <translation>Un valor no es un número o está fuera de rango: %1.</translation>
    </message>
    <message>
        <source>A unit is missing, or not what its name says: %1.</source>
        <translation>Falta una unidad o no es la que indica su nombre: %1.</translation>
    </message>
    <message>
        <source>The prime meridian&apos;s longitude is not that of its name: %1.</source>
        <translation>La longitud del meridiano origen no es la de su nombre: %1.</translation>
    </message>
    <message>
        <source>The ellipsoid is unknown, or its axes leave a doubt.</source>
        <translation>El elipsoide es desconocido o sus ejes dejan dudas.</translation>
    </message>
    <message>
        <source>Twice, or with a number too many (a decimal comma?): %1.</source>
        <translation>Dos veces, o con un número de más (¿una coma decimal?): %1.</translation>
    </message>
    <message>
        <source>PROJ makes another projection of these parameters, or none.</source>
        <translation>PROJ obtiene de estos parámetros otra proyección, o ninguna.</translation>
    </message>
    <message>
        <source>The text names a file, which is not read: %1.</source>
        <translation>El texto nombra un archivo, que no se lee: %1.</translation>
    </message>
    <message>
        <source>No WKT, no PROJJSON, no PROJ definition and no code of a registry.</source>
        <translation>Ni WKT, ni PROJJSON, ni definición PROJ, ni código de un registro.</translation>
    </message>
    <message>
        <source>Too long, or brackets too deep: up to %1 bytes are read.</source>
        <translation>Demasiado largo o con demasiados paréntesis anidados: se leen hasta %1 bytes.</translation>
    </message>
    <message>
        <source>No registry has the system %1.</source>
        <translation>Ningún registro contiene el sistema %1.</translation>
    </message>
    <message>
        <source>PROJ can&apos;t read it: %1</source>
        <translation>PROJ no puede leerlo: %1</translation>
    </message>
    <message>
        <source>%1 (deprecated)</source>
        <translation>%1 (obsoleto)</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>northing comes first</source>
        <translation>el norte va primero</translation>
    </message>
    <message>
        <source>in US survey feet</source>
        <translation>son pies topográficos (EE. UU.)</translation>
    </message>
    <message>
        <source>in international feet</source>
        <translation>son pies internacionales</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>la unidad es %1</translation>
    </message>
    <message>
        <source>%1 is missing before the easting</source>
        <translation>falta %1 delante del este</translation>
    </message>
    <message>
        <source>%1 before the easting is the zone</source>
        <translation>%1 delante del este es el huso</translation>
    </message>
    <message>
        <source>if %1</source>
        <translation>si %1</translation>
    </message>
    <message>
        <source>the same</source>
        <translation>el mismo</translation>
    </message>
    <message>
        <source>own</source>
        <translation>propio</translation>
    </message>
    <message>
        <source>With the system&apos;s datum shift, the place being on WGS 84</source>
        <translation>Con el cambio de datum del sistema, estando el lugar en WGS 84</translation>
    </message>
    <message>
        <source>From the place to where the system has the coordinates; of several points the root mean square</source>
        <translation>Del lugar al punto en que el sistema sitúa las coordenadas; con varios puntos, la media cuadrática</translation>
    </message>
    <message>
        <source>What is left of the distances without what all points have in common, as a datum shift: the smaller, the better the system fits</source>
        <translation>Lo que queda de las distancias sin lo que es común a todos los puntos, como un cambio de datum: cuanto menor, mejor encaja el sistema</translation>
    </message>
    <message>
        <source>Spread</source>
        <translation>Dispersión</translation>
    </message>
    <message>
        <source>EPSG</source>
        <translation>EPSG</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Condición</translation>
    </message>
    <message>
        <source>EPSG:%1, %2</source>
        <translation>EPSG:%1, %2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 y %n más</numerusform>
            <numerusform>%1 y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>In the registry</source>
        <translation>En el registro</translation>
    </message>
    <message>
        <source>The record is no system of the registry.</source>
        <translation>El sistema no es ninguno del registro.</translation>
    </message>
    <message>
        <source>Says that this is %1.</source>
        <translation>Declara que es %1.</translation>
    </message>
    <message>
        <source>Says that this is %1, on the datum %2.</source>
        <translation>Declara que es %1, en el datum %2.</translation>
    </message>
    <message>
        <source>The registry leaves the datum open.</source>
        <translation>El registro deja el datum abierto.</translation>
    </message>
    <message>
        <source>The registry&apos;s datum is %1.</source>
        <translation>El datum del registro es %1.</translation>
    </message>
    <message>
        <source>The registry counts in %1, the record in metres.</source>
        <translation>El registro cuenta en %1; el sistema mostrado, en metros.</translation>
    </message>
    <message>
        <source>The registry&apos;s figures differ a little.</source>
        <translation>Los valores del registro difieren un poco.</translation>
    </message>
    <message>
        <source>Looking through the EPSG registry...</source>
        <translation>Buscando en el registro EPSG...</translation>
    </message>
    <message>
        <source>%1: the same to %2 mm over its area</source>
        <translation>%1: igual en toda su zona, con diferencias de hasta %2 mm</translation>
    </message>
    <message>
        <source>Also %1</source>
        <translation>También %1</translation>
    </message>
    <message>
        <source>No system of the EPSG registry is like it</source>
        <translation>Ningún sistema del registro EPSG se le parece</translation>
    </message>
    <message>
        <source>As %1, but: %2</source>
        <translation>Como %1, pero: %2</translation>
    </message>
    <message>
        <source>%1 %2 (there %3)</source>
        <translation>%1 %2 (allí %3)</translation>
    </message>
    <message>
        <source>EPSG code, words of the name or of the area</source>
        <translation>Código EPSG, palabras del nombre o de la zona</translation>
    </message>
    <message>
        <source>Deprecated ones too</source>
        <translation>También los obsoletos</translation>
    </message>
    <message>
        <source>Covers the point</source>
        <translation>Cubre el punto</translation>
    </message>
    <message>
        <source>Systems found: %1</source>
        <translation>Sistemas encontrados: %1</translation>
    </message>
    <message>
        <source>A place, roughly, and the coordinates that it has in the unknown system; more points narrow it down.</source>
        <translation>Un lugar, aproximado, y sus coordenadas en el sistema desconocido; con más puntos se delimita mejor.</translation>
    </message>
    <message>
        <source>Paste rows</source>
        <translation>Pegar filas</translation>
    </message>
    <message>
        <source>Lines of latitude, longitude, first and second coordinate</source>
        <translation>Líneas con latitud, longitud, primera y segunda coordenada</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Buscando...</translation>
    </message>
    <message>
        <source>Systems found so far: %1</source>
        <translation>Sistemas encontrados hasta ahora: %1</translation>
    </message>
    <message>
        <source>No system that is used there can have these coordinates.</source>
        <translation>Ningún sistema que se use allí puede tener estas coordenadas.</translation>
    </message>
    <message>
        <source>Distances are without datum shift, which can move a place by some hundred metres.</source>
        <translation>Las distancias son sin cambio de datum, que puede desplazar un lugar algunos cientos de metros.</translation>
    </message>
    <message numerus="yes">
        <source>No system gives these coordinates within 50 km of the place. The nearest %n:</source>
        <translation>
            <numerusform>Ningún sistema da estas coordenadas a menos de 50 km del lugar. El más cercano (%n):</numerusform>
            <numerusform>Ningún sistema da estas coordenadas a menos de 50 km del lugar. Los %n más cercanos:</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 from the place, with the system&apos;s datum shift</source>
        <translation>A %1 del lugar, con el cambio de datum del sistema</translation>
    </message>
    <message>
        <source>%1 from the place, without datum shift</source>
        <translation>A %1 del lugar, sin cambio de datum</translation>
    </message>
    <message>
        <source>, %1 with the one below</source>
        <translation>, %1 con el de abajo</translation>
    </message>
    <message>
        <source>Nothing to paste: lines of latitude, longitude and two coordinates.</source>
        <translation>Nada que pegar: hacen falta líneas con latitud, longitud y dos coordenadas.</translation>
    </message>
    <message>
        <source>First coordinate</source>
        <translation>Primera coordenada</translation>
    </message>
    <message>
        <source>Second coordinate</source>
        <translation>Segunda coordenada</translation>
    </message>
    <message>
        <source>%1 of point %2</source>
        <translation>%1 del punto %2</translation>
    </message>
    <message>
        <source>Point %1, %2: %3</source>
        <translation>Punto %1, %2: %3</translation>
    </message>
    <message>
        <source>%1, accuracy %2 m</source>
        <translation>%1, exactitud %2 m</translation>
    </message>
    <message>
        <source>From registry</source>
        <translation>Desde el registro</translation>
    </message>
    <message>
        <source>By name or code</source>
        <translation>Por nombre o código</translation>
    </message>
    <message>
        <source>From coordinates</source>
        <translation>Por coordenadas</translation>
    </message>
    <message>
        <source>Datum shift to WGS 84</source>
        <translation>Cambio de datum a WGS 84</translation>
    </message>
    <message>
        <source>Copies this system&apos;s ellipsoid, projection, datum shift and geoid model; name and remark stay.</source>
        <translation>Copia el elipsoide, la proyección, el cambio de datum y el modelo de geoide de este sistema; el nombre y la observación se mantienen.</translation>
    </message>
    <message>
        <source>As in the catalogue</source>
        <translation>Como en el catálogo</translation>
    </message>
    <message>
        <source>Of the own catalogue: %1</source>
        <translation>Del catálogo propio: %1</translation>
    </message>
    <message>
        <source>The file is there already.</source>
        <translation>El archivo ya existe.</translation>
    </message>
    <message>
        <source>The file there is an older one.</source>
        <translation>El archivo existente es anterior.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Cancelado.</translation>
    </message>
    <message>
        <source>Left out. %1</source>
        <translation>Omitido. %1</translation>
    </message>
    <message>
        <source>There already</source>
        <translation>Ya existe</translation>
    </message>
    <message>
        <source>Saved. %1</source>
        <translation>Guardado. %1</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Guardados: %1</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>Omitidos: %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Save group as .prj</source>
        <translation>Guardar grupo como .prj</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Examinar...</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Copy summary</source>
        <translation>Copiar resumen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Sobrescribir</translation>
    </message>
    <message>
        <source>Keep existing</source>
        <translation>Conservar</translation>
    </message>
    <message numerus="yes">
        <source>There already: %n of %1 files. Overwrite them?</source>
        <translation>
            <numerusform>Ya existe %n de %1 archivos. ¿Sobrescribirlo?</numerusform>
            <numerusform>Ya existen %n de %1 archivos. ¿Sobrescribirlos?</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no such folder.</source>
        <translation>No existe esa carpeta.</translation>
    </message>
    <message>
        <source>Systems: %1</source>
        <translation>Sistemas: %1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Shift from points</source>
        <translation>Cambio de datum a partir de puntos</translation>
    </message>
    <message>
        <source>Own datum</source>
        <translation>Datum propio</translation>
    </message>
    <message>
        <source>Latitude, longitude, height</source>
        <translation>Latitud, longitud, altura</translation>
    </message>
    <message>
        <source>Easting, northing, height</source>
        <translation>Este, norte, altura</translation>
    </message>
    <message>
        <source>Geocentric X, Y, Z</source>
        <translation>X, Y, Z geocéntricas</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parámetros</translation>
    </message>
    <message>
        <source>Seven</source>
        <translation>Siete</translation>
    </message>
    <message>
        <source>Three</source>
        <translation>Tres</translation>
    </message>
    <message>
        <source>Points are typed, or pasted as lines: name and three numbers on either datum.</source>
        <translation>Los puntos se escriben o se pegan como líneas: nombre y tres números en cada datum.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>Consejo</translation>
    </message>
    <message>
        <source>Just enough points: nothing is left over to tell how good the shift is.</source>
        <translation>Solo los puntos justos: no hay redundancia para valorar la calidad del cambio de datum.</translation>
    </message>
    <message>
        <source>Standard deviation of a coordinate: %1 m (redundancy %2).</source>
        <translation>Desviación típica de una coordenada: %1 m (redundancia %2).</translation>
    </message>
    <message>
        <source>%1 with %2 %3</source>
        <translation>%1 con %2 %3</translation>
    </message>
    <message>
        <source>Largest correlations: %1.</source>
        <translation>Mayores correlaciones: %1.</translation>
    </message>
    <message>
        <source>Lines that can&apos;t be used: %1.</source>
        <translation>Líneas que no se pueden usar: %1.</translation>
    </message>
    <message>
        <source>The projection gives no result here.</source>
        <translation>La proyección no da resultado aquí.</translation>
    </message>
    <message>
        <source>This place is not on the Earth.</source>
        <translation>Este lugar no está en la Tierra.</translation>
    </message>
    <message>
        <source>The other points speak against this one: check it, or leave it out.</source>
        <translation>Los demás puntos contradicen este: compruébelo o exclúyalo.</translation>
    </message>
    <message>
        <source>Easting, m</source>
        <translation>Este, m</translation>
    </message>
    <message>
        <source>Northing, m</source>
        <translation>Norte, m</translation>
    </message>
    <message>
        <source>Height, m</source>
        <translation>Altura, m</translation>
    </message>
    <message>
        <source>WGS 84 X, m</source>
        <translation>WGS 84 X, m</translation>
    </message>
    <message>
        <source>WGS 84 latitude</source>
        <translation>Latitud WGS 84</translation>
    </message>
    <message>
        <source>WGS 84 Y, m</source>
        <translation>WGS 84 Y, m</translation>
    </message>
    <message>
        <source>WGS 84 longitude</source>
        <translation>Longitud WGS 84</translation>
    </message>
    <message>
        <source>WGS 84 Z, m</source>
        <translation>WGS 84 Z, m</translation>
    </message>
    <message>
        <source>WGS 84 height, m</source>
        <translation>Altura WGS 84, m</translation>
    </message>
    <message>
        <source>Before, m</source>
        <translation>Antes, m</translation>
    </message>
    <message>
        <source>East, mm</source>
        <translation>Este, mm</translation>
    </message>
    <message>
        <source>North, mm</source>
        <translation>Norte, mm</translation>
    </message>
    <message>
        <source>Up, mm</source>
        <translation>Vertical, mm</translation>
    </message>
    <message>
        <source>Smallest value: %1 %2 at easting %3, northing %4.</source>
        <translation>Valor mínimo: %1 %2 en este %3, norte %4.</translation>
    </message>
    <message>
        <source>Largest value: %1 %2 at easting %3, northing %4.</source>
        <translation>Valor máximo: %1 %2 en este %3, norte %4.</translation>
    </message>
    <message>
        <source>The picture: easting %1 to %2, northing %3 to %4, in %5.</source>
        <translation>El gráfico: este de %1 a %2, norte de %3 a %4, en %5.</translation>
    </message>
    <message>
        <source>The arrow keys move a mark over it.</source>
        <translation>Las teclas de flecha mueven una marca sobre él.</translation>
    </message>
    <message>
        <source>The picture is empty.</source>
        <translation>El gráfico está vacío.</translation>
    </message>
    <message>
        <source>%1 before</source>
        <translation>%1 antes</translation>
    </message>
    <message>
        <source>First lines</source>
        <translation>Primeras líneas</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Points drawn: %1, beyond the tolerance: %2, left out: %3.</source>
        <translation>Puntos dibujados: %1; fuera de tolerancia: %2; excluidos: %3.</translation>
    </message>
    <message>
        <source>Largest difference: %1 %2; differences are drawn %3.</source>
        <translation>Diferencia máxima: %1 %2; las diferencias se dibujan %3.</translation>
    </message>
    <message>
        <source>Copy the PROJ definition</source>
        <translation>Copiar la definición PROJ</translation>
    </message>
    <message>
        <source>Copy the WKT</source>
        <translation>Copiar el WKT</translation>
    </message>
    <message>
        <source>This comma could part thousands: use a decimal point.</source>
        <translation>Esta coma podría separar millares: use punto decimal.</translation>
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
        <translation>Sistemas encontrados: %1.</translation>
    </message>
    <message>
        <source>Height</source>
        <comment>what a system says of heights</comment>
        <translation>Altura</translation>
    </message>
</context>
<context>
    <name>DlgCoordSysGroups</name>
    <message>
        <source>CoordSysGroup</source>
        <translation>Sistemas de coordenadas</translation>
    </message>
    <message>
        <source>AddSysGroup</source>
        <translation>Añadir grupo</translation>
    </message>
    <message>
        <source>ImportCoordSys</source>
        <translation>Importar sistemas</translation>
    </message>
    <message>
        <source>AddCoordSys</source>
        <translation>Añadir sistema</translation>
    </message>
    <message>
        <source>EditSysGroup</source>
        <translation>Cambiar nombre del grupo</translation>
    </message>
    <message>
        <source>DelSysGroup</source>
        <translation>Eliminar grupo</translation>
    </message>
    <message>
        <source>EditSys</source>
        <translation>Cambiar nombre del sistema</translation>
    </message>
    <message>
        <source>DelSys</source>
        <translation>Eliminar sistema</translation>
    </message>
    <message>
        <source>are you sure delete coord system group %1 ?</source>
        <translation>¿Seguro que desea eliminar el grupo %1?</translation>
    </message>
    <message>
        <source>are you sure delete coord system %1 ?</source>
        <translation>¿Seguro que desea eliminar el sistema de coordenadas %1?</translation>
    </message>
    <message>
        <source>Selecte WKT file</source>
        <translation>Seleccionar archivos WKT</translation>
    </message>
    <message>
        <source>Import file failed!</source>
        <translation>¡No se pudo importar el archivo!</translation>
    </message>
    <message>
        <source>Import file isn&apos;t projection coordinates!</source>
        <translation>¡El archivo no contiene un sistema proyectado!</translation>
    </message>
    <message>
        <source>The Imported projection coordinates already exist in the group!</source>
        <translation>¡El sistema importado ya existe en el grupo!</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>DlgInputName</name>
    <message>
        <source>please input name</source>
        <translation>Introduzca el nombre</translation>
    </message>
    <message>
        <source>please input valid content!</source>
        <translation>¡Introduzca un nombre válido!</translation>
    </message>
    <message>
        <source>has same as coord group name!</source>
        <translation>¡Ya existe un grupo con ese nombre!</translation>
    </message>
    <message>
        <source>has same as coord system name!</source>
        <translation>¡Ya existe un sistema con ese nombre!</translation>
    </message>
    <message>
        <source>information</source>
        <translation>Información</translation>
    </message>
</context>
<context>
    <name>QFile</name>
    <message>
        <source>Filename refers to a directory</source>
        <translation>El nombre de archivo corresponde a una carpeta</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Error desconocido</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Do you want to exit program?</source>
        <translation>¿Desea salir del programa?</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>please input correct param!</source>
        <translation>¡Introduzca parámetros correctos!</translation>
    </message>
    <message>
        <source>Are you sure you want to delete ellipsoid [%1]?</source>
        <translation>¿Seguro que desea eliminar el elipsoide [%1]?</translation>
    </message>
    <message>
        <source>has same name as system, whether cover?</source>
        <translation>Ya existe un elipsoide propio con ese nombre. ¿Reemplazarlo?</translation>
    </message>
    <message>
        <source>new add ellipsoid name can&apos;t same as system!</source>
        <translation>¡Un elipsoide nuevo no puede llevar el nombre de uno del programa!</translation>
    </message>
    <message>
        <source>Edit Ellipsoid</source>
        <translation>Editar elipsoides</translation>
    </message>
    <message>
        <source>Ellipsoid Name</source>
        <translation>Nombre del elipsoide</translation>
    </message>
    <message>
        <source>ellipsoid a(m)</source>
        <translation>Semieje mayor a (m)</translation>
    </message>
    <message>
        <source>ellipsoid f</source>
        <translation>Aplanamiento inverso 1/f</translation>
    </message>
    <message>
        <source>Are you sure you want to delete geoid [%1]?</source>
        <translation>¿Seguro que desea eliminar el modelo de geoide [%1]?</translation>
    </message>
    <message>
        <source>has same file name, whether or not covered?</source>
        <translation>Ya existe un modelo de geoide propio con ese nombre. ¿Reemplazarlo?</translation>
    </message>
    <message>
        <source>new geoid name can&apos;t same with system name!</source>
        <translation>¡Un modelo de geoide nuevo no puede llevar el nombre de uno del programa!</translation>
    </message>
    <message>
        <source>New Geoid</source>
        <translation>Modelos de geoide</translation>
    </message>
    <message>
        <source>Geoid Name</source>
        <translation>Nombre del modelo</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>Ruta del archivo</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Examinar</translation>
    </message>
    <message>
        <source>selete file</source>
        <translation>Seleccionar archivo</translation>
    </message>
    <message>
        <source>Geiod File(*.ggf *.vgf)</source>
        <translation>Archivo de geoide (*.ggf *.vgf)</translation>
    </message>
    <message>
        <source>AddGeoid</source>
        <translation>Editar modelos de geoide</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>VornCoordSysMainWindow</name>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Data is changed!</source>
        <translation>Los datos han cambiado. ¿Guardar los cambios?</translation>
    </message>
    <message>
        <source>Coordinate System Manager</source>
        <translation>Gestor de sistemas de coordenadas</translation>
    </message>
</context>
</TS>
