<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>DlgCoordParam</name>
    <message>
        <source>Origin</source>
        <translation>原点</translation>
    </message>
    <message>
        <source>Standard parallels</source>
        <translation>标准纬线</translation>
    </message>
    <message>
        <source>Checked point</source>
        <translation>检核点</translation>
    </message>
    <message>
        <source>Designed area</source>
        <translation>设计区域</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>区域</translation>
    </message>
    <message>
        <source>What the map is around.</source>
        <translation>地图的中心。</translation>
    </message>
    <message>
        <source>Width of the area</source>
        <translation>区域宽度</translation>
    </message>
    <message>
        <source>Side of the square area; the map shows all of it.</source>
        <translation>正方形区域的边长；地图显示整个区域。</translation>
    </message>
    <message>
        <source>Central meridian</source>
        <translation>中央子午线</translation>
    </message>
    <message>
        <source>Standard parallel</source>
        <translation>标准纬线</translation>
    </message>
    <message>
        <source>Outline of the area</source>
        <translation>区域轮廓</translation>
    </message>
    <message>
        <source>Easting, %1</source>
        <translation>东坐标/%1</translation>
    </message>
    <message>
        <source>Northing, %1</source>
        <translation>北坐标/%1</translation>
    </message>
    <message>
        <source>From catalogue</source>
        <translation>从目录选取</translation>
    </message>
    <message>
        <source>Words of the group or of the name</source>
        <translation>分组或名称中的词</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>分组</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Systems</source>
        <translation>坐标系统</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <translation>%1，位于%2</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>纬度</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>经度</translation>
    </message>
    <message>
        <source>Ellipsoidal height</source>
        <translation>大地高</translation>
    </message>
    <message>
        <source>along the meridian %1
along the parallel %2</source>
        <translation>沿子午线%1
沿纬线%2</translation>
    </message>
    <message>
        <source>Copy as text</source>
        <translation>复制为文本</translation>
    </message>
    <message>
        <source>The system&apos;s own</source>
        <translation>本系统的基准</translation>
    </message>
    <message>
        <source>WGS 84</source>
        <translation>WGS 84</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>基准</translation>
    </message>
    <message>
        <source>Easting</source>
        <translation>东坐标</translation>
    </message>
    <message>
        <source>Northing</source>
        <translation>北坐标</translation>
    </message>
    <message>
        <source>Grid scale factor</source>
        <translation>投影长度比</translation>
    </message>
    <message>
        <source>Convergence</source>
        <translation>子午线收敛角</translation>
    </message>
    <message>
        <source>Combined factor</source>
        <translation>综合长度比</translation>
    </message>
    <message>
        <source>Closing error</source>
        <translation>正反算互差</translation>
    </message>
    <message>
        <source>A true azimuth is the grid bearing plus the convergence. Where the projection is not conformal, this holds along the meridian only.</source>
        <translation>大地方位角等于坐标方位角加子午线收敛角。投影非等角时，仅沿子午线方向成立。</translation>
    </message>
    <message>
        <source>Grid scale factor times R / (R + height): from a distance at that height to the grid.</source>
        <translation>投影长度比乘以R / (R + 大地高)：由该高度上的距离得到投影面上的距离。</translation>
    </message>
    <message>
        <source>How far the point is off when it is computed there and back: through the projection, and through the datum shift.</source>
        <translation>该点正算后再反算的偏差：分别经过投影和基准转换。</translation>
    </message>
    <message>
        <source>the same: the system&apos;s datum is WGS 84</source>
        <translation>相同：系统的基准就是WGS 84</translation>
    </message>
    <message>
        <source>unknown: the system defines no datum shift</source>
        <translation>未知：系统未定义基准转换</translation>
    </message>
    <message>
        <source>The registry&apos;s shifts move this point by %1 m.</source>
        <translation>按注册库的基准转换，该点移动%1 m。</translation>
    </message>
    <message>
        <source>The registry&apos;s shifts move this point by %1 to %2 m.</source>
        <translation>按注册库的各种基准转换，该点移动%1～%2 m。</translation>
    </message>
    <message>
        <source>On WGS 84</source>
        <translation>WGS 84上的位置</translation>
    </message>
    <message>
        <source>On the own datum</source>
        <translation>本系统基准上的位置</translation>
    </message>
    <message>
        <source>The projection gives no result for this point.</source>
        <translation>投影在该点无结果。</translation>
    </message>
    <message>
        <source>along the meridian %1
in other directions off by up to %2&quot;</source>
        <translation>沿子午线%1
其他方向偏差最大%2&quot;</translation>
    </message>
    <message>
        <source>%1, datum shift %2</source>
        <translation>%1，基准转换%2</translation>
    </message>
    <message>
        <source>The projection is not reliable here.</source>
        <translation>投影在此处不可靠。</translation>
    </message>
    <message>
        <source>The datum shift is not reliable here.</source>
        <translation>基准转换在此处不可靠。</translation>
    </message>
    <message>
        <source>Lengths of points in international feet (ft, 0.3048 m); the system&apos;s parameters in metres.</source>
        <translation>点的长度单位为国际英尺（ft，0.3048 m）；系统参数以米为单位。</translation>
    </message>
    <message>
        <source>Lengths of points in US survey feet (ftUS, 1200/3937 m); the system&apos;s parameters in metres.</source>
        <translation>点的长度单位为美国测量英尺（ftUS，1200/3937 m）；系统参数以米为单位。</translation>
    </message>
    <message>
        <source>Lengths in metres (m).</source>
        <translation>长度单位为米（m）。</translation>
    </message>
    <message>
        <source>Check of a coordinate system against control points</source>
        <translation>用控制点检核坐标系统</translation>
    </message>
    <message>
        <source>No point in use has both pairs of coordinates: nothing could be compared.</source>
        <translation>参与统计的点中没有同时具备两组坐标的点：无法比较。</translation>
    </message>
    <message numerus="yes">
        <source>All %n compared point(s) are within the tolerance of %1.</source>
        <translation>
            <numerusform>比较的%n个点全部在限差%1以内。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 compared points are beyond the tolerance of %2.</source>
        <translation>
            <numerusform>比较的%1个点中有%n个超出限差%2。</numerusform>
        </translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Computed minus given</source>
        <translation>计算值减已知值</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>平均值</translation>
    </message>
    <message>
        <source>RMS</source>
        <translation>均方根</translation>
    </message>
    <message>
        <source>largest</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>距离</translation>
    </message>
    <message numerus="yes">
        <source>point(s) in the list</source>
        <translation>
            <numerusform>个点在列表中</numerusform>
        </translation>
    </message>
    <message>
        <source>compared: in use, with both pairs of coordinates</source>
        <translation>参与比较：参与统计且有两组坐标</translation>
    </message>
    <message>
        <source>of these beyond the tolerance, the farthest first</source>
        <translation>其中超限，偏差最大者在前</translation>
    </message>
    <message>
        <source>with both pairs left out of the figures by hand</source>
        <translation>有两组坐标，但已人工剔除，不参与统计</translation>
    </message>
    <message>
        <source>with one pair only, the other computed</source>
        <translation>仅有一组坐标，另一组由计算得到</translation>
    </message>
    <message>
        <source>not computed, as that was cancelled</source>
        <translation>因取消而未计算</translation>
    </message>
    <message>
        <source>without a result; the list says why</source>
        <translation>无结果；原因见列表</translation>
    </message>
    <message>
        <source>with a name that another has</source>
        <translation>点名与其他点重复</translation>
    </message>
    <message>
        <source>Latitudes, longitudes and heights of the points are on the system&apos;s own datum.</source>
        <translation>各点的纬度、经度和大地高属于本系统的基准。</translation>
    </message>
    <message>
        <source>Latitudes, longitudes and heights of the points are on WGS 84, and brought to the system&apos;s datum by its shift.</source>
        <translation>各点的纬度、经度和大地高属于WGS 84，并已用本系统的基准转换换算到其基准。</translation>
    </message>
    <message>
        <source>No. %1</source>
        <translation>第%1号</translation>
    </message>
    <message>
        <source>System</source>
        <translation>坐标系统</translation>
    </message>
    <message>
        <source>Points and residuals</source>
        <translation>控制点与残差</translation>
    </message>
    <message>
        <source>Vectors lead from the given place to the computed one, longer than life by the factor beside the scale bar. Red: beyond the tolerance. Grey: left out.</source>
        <translation>矢量由已知位置指向计算位置，放大倍数见比例尺旁。红色：超限。灰色：已剔除。</translation>
    </message>
    <message>
        <source>Linear distortion</source>
        <translation>长度变形</translation>
    </message>
    <message>
        <source>On the map: %1 to %2 ppm (mm in a kilometre). Red: longer in the grid than on the ground; blue: shorter. Black rectangle: the area of the points.</source>
        <translation>图中范围：%1～%2 ppm（毫米/千米）。红色：投影面上比地面长；蓝色：比地面短。黑色矩形：点所在区域。</translation>
    </message>
    <message>
        <source>At the points&apos; mean height of %1 above the ellipsoid.</source>
        <translation>取各点的平均大地高%1。</translation>
    </message>
    <message>
        <source>At the height 0, as the points have none: what the projection alone does.</source>
        <translation>各点无大地高，故取0：仅为投影本身的变形。</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>控制点</translation>
    </message>
    <message>
        <source>ΔE, ΔN: computed from latitude and longitude, minus given. *: beyond the tolerance. Slanted: computed from the other pair.</source>
        <translation>ΔE、ΔN：由纬度和经度计算的值减已知值。*：超限。斜体：由另一组坐标计算。</translation>
    </message>
    <message>
        <source>The list has %1 points, too many for a report; here are those that matter most. &quot;Save...&quot; writes all of them as CSV.</source>
        <translation>列表共有%1个点，对报告而言过多；此处仅列出最重要的点。“保存...”可将全部点写入CSV。</translation>
    </message>
    <message numerus="yes">
        <source>The %n point(s) that are farthest off, of %1 compared</source>
        <translation>
            <numerusform>偏差最大的%n个点（共比较%1个）</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Points left out or without a result: the first %n of %1</source>
        <translation>
            <numerusform>已剔除或无结果的点：%1个中的前%n个</numerusform>
        </translation>
    </message>
    <message>
        <source>No.</source>
        <translation>序号</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>大地高</translation>
    </message>
    <message>
        <source>Left out of the figures.</source>
        <translation>已剔除，不参与统计。</translation>
    </message>
    <message>
        <source>From catalogue...</source>
        <translation>从目录...</translation>
    </message>
    <message>
        <source>From registry...</source>
        <translation>从注册库...</translation>
    </message>
    <message>
        <source>With datum shifts</source>
        <translation>含基准转换</translation>
    </message>
    <message>
        <source>Apart from the mean</source>
        <translation>去除平均值</translation>
    </message>
    <message>
        <source>Picture of the difference</source>
        <translation>差值图</translation>
    </message>
    <message>
        <source>The same place for both systems: through WGS 84 with both datum shifts, or else the same latitude and longitude.</source>
        <translation>两个系统取同一位置：经两者的基准转换通过WGS 84；否则取相同的纬度和经度。</translation>
    </message>
    <message>
        <source>The map shows what is left of the difference without its mean over the area, as after another false easting and northing.</source>
        <translation>地图显示差值去除区域平均值后的剩余部分，相当于改变东向和北向加常数。</translation>
    </message>
    <message>
        <source>The difference is easting and northing of the shown system minus those of the other one, at the same place on the ground.</source>
        <translation>差值为地面同一位置上，所示系统的东、北坐标减另一系统的东、北坐标。</translation>
    </message>
    <message>
        <source>Choose a system to compare with</source>
        <translation>请选择要比较的坐标系统</translation>
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
        <translation>鼠标处</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>平均值</translation>
    </message>
    <message>
        <source>Apart from it</source>
        <translation>其余</translation>
    </message>
    <message>
        <source>The point of the page &quot;Point&quot;.</source>
        <translation>“点”页中的点。</translation>
    </message>
    <message>
        <source>Over the black square.</source>
        <translation>黑色方框内的平均值。</translation>
    </message>
    <message>
        <source>What is left of the difference without its mean is no larger in the black square.</source>
        <translation>在黑色方框内，差值去除平均值后的剩余部分不超过此值。</translation>
    </message>
    <message>
        <source>minus %1</source>
        <translation>减%1</translation>
    </message>
    <message>
        <source>Easting and northing of the shown system minus those of %1, as it was when it was chosen, at the same place on the ground.</source>
        <translation>地面同一位置上，所示系统的东、北坐标减%1（选取时的状态）的东、北坐标。</translation>
    </message>
    <message>
        <source>One of the projections gives no result in this area.</source>
        <translation>其中一个投影在该区域无结果。</translation>
    </message>
    <message>
        <source>Neither system defines a datum shift: both count as on WGS 84.</source>
        <translation>两个系统均未定义基准转换：均按WGS 84处理。</translation>
    </message>
    <message>
        <source>No datum shift is defined by %1: it counts as on WGS 84.</source>
        <translation>%1未定义基准转换：按WGS 84处理。</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1～%2</translation>
    </message>
    <message>
        <source>Take over</source>
        <translation>采用</translation>
    </message>
    <message>
        <source>For this area</source>
        <translation>针对此区域</translation>
    </message>
    <message>
        <source>For the point</source>
        <translation>针对该点</translation>
    </message>
    <message>
        <source>Least distortion</source>
        <translation>变形最小</translation>
    </message>
    <message>
        <source>Where the largest distortion at that height is to be smallest: in the square on the map, or at the checked point.</source>
        <translation>在何处使该高度上的最大变形为最小：图上的方框内，或检核点处。</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>设计</translation>
    </message>
    <message>
        <source>Move the meridian</source>
        <translation>移动子午线</translation>
    </message>
    <message>
        <source>Move the parallel</source>
        <translation>移动纬线</translation>
    </message>
    <message>
        <source>There is nothing to propose here.</source>
        <translation>此处无可建议的参数。</translation>
    </message>
    <message>
        <source>This system has no scale factor to choose.</source>
        <translation>该系统没有可选的尺度比。</translation>
    </message>
    <message>
        <source>The system is as good as it can be here.</source>
        <translation>系统在此处已是最优。</translation>
    </message>
    <message>
        <source>Distortion in ppm: %1 → %2</source>
        <translation>变形（ppm）：%1 → %2</translation>
    </message>
    <message>
        <source>Picture of the linear distortion</source>
        <translation>长度变形图</translation>
    </message>
    <message>
        <source>Mean ellipsoidal height of the ground; 0 shows the grid&apos;s own distortion.</source>
        <translation>地面的平均大地高；0表示投影本身的变形。</translation>
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
        <translation>将鼠标移到地图上，查看该处的变形。</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>拟合</translation>
    </message>
    <message>
        <source>What would meet the points best; what is not ticked is held.</source>
        <translation>与各点最为符合的参数值；未勾选的保持不变。</translation>
    </message>
    <message>
        <source>before</source>
        <translation>拟合前</translation>
    </message>
    <message>
        <source>after ± standard deviation</source>
        <translation>拟合后±中误差</translation>
    </message>
    <message>
        <source>Scale factor</source>
        <translation>尺度比</translation>
    </message>
    <message>
        <source>False easting</source>
        <translation>东向加常数</translation>
    </message>
    <message>
        <source>False northing</source>
        <translation>北向加常数</translation>
    </message>
    <message>
        <source>RMS, largest</source>
        <translation>均方根/最大</translation>
    </message>
    <message>
        <source>Misfit before</source>
        <translation>拟合前的偏差</translation>
    </message>
    <message>
        <source>Misfit after</source>
        <translation>拟合后的偏差</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Remainder</source>
        <translation>剩余</translation>
    </message>
    <message>
        <source>Diagnosis</source>
        <translation>诊断</translation>
    </message>
    <message>
        <source>%1 after</source>
        <translation>拟合后的%1</translation>
    </message>
    <message>
        <source>Against the ground remain a rotation of %1 ± %2%3 and a scale of %4 ± %5 ppm.</source>
        <translation>相对于地面仍有旋转%1 ± %2%3和尺度%4 ± %5 ppm。</translation>
    </message>
    <message>
        <source>(not used)</source>
        <translation>（不使用）</translation>
    </message>
    <message>
        <source>Decimal comma</source>
        <translation>小数逗号</translation>
    </message>
    <message>
        <source>First line is a heading</source>
        <translation>首行为标题</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>制表符</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>逗号</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>分号</translation>
    </message>
    <message>
        <source>Blanks</source>
        <translation>空格</translation>
    </message>
    <message>
        <source>Columns parted by</source>
        <translation>列分隔符</translation>
    </message>
    <message>
        <source>metres</source>
        <translation>米</translation>
    </message>
    <message>
        <source>international feet</source>
        <translation>国际英尺</translation>
    </message>
    <message>
        <source>US survey feet</source>
        <translation>美国测量英尺</translation>
    </message>
    <message>
        <source>Lengths in</source>
        <translation>长度单位</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>第%1列</translation>
    </message>
    <message>
        <source>Columns of one kind belong together: degrees, minutes and seconds.</source>
        <translation>同类的列合在一起：度、分、秒。</translation>
    </message>
    <message>
        <source>Say which columns are latitude and longitude, or easting and northing.</source>
        <translation>请指定纬度和经度列，或东坐标和北坐标列。</translation>
    </message>
    <message numerus="yes">
        <source>%n point(s), %1 with both pairs</source>
        <translation>
            <numerusform>%n个点，其中%1个有两组坐标</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left out</source>
        <translation>
            <numerusform>剔除%n个</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 beyond the tolerance</source>
        <translation>超限%1个</translation>
    </message>
    <message>
        <source>%1 without a result</source>
        <translation>无结果%1个</translation>
    </message>
    <message>
        <source>%1 with a name that another has</source>
        <translation>点名重复%1个</translation>
    </message>
    <message>
        <source>Paste, open or type points.</source>
        <translation>请粘贴、打开或输入点。</translation>
    </message>
    <message>
        <source>Out of range.</source>
        <translation>超出范围。</translation>
    </message>
    <message>
        <source>Fitted ΔE</source>
        <translation>拟合后ΔE</translation>
    </message>
    <message>
        <source>Fitted ΔN</source>
        <translation>拟合后ΔN</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>A point without a check mark is left out of the statistics.</source>
        <translation>未勾选的点不参与统计。</translation>
    </message>
    <message>
        <source>Ellipsoidal height; 0 where there is none.</source>
        <translation>大地高；没有时取0。</translation>
    </message>
    <message>
        <source>Slanted: computed from the other pair.</source>
        <translation>斜体：由另一组坐标计算。</translation>
    </message>
    <message>
        <source>What the fit would leave.</source>
        <translation>拟合后的剩余差值。</translation>
    </message>
    <message>
        <source>Computed from latitude and longitude, minus given.</source>
        <translation>由纬度和经度计算的值减已知值。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>打开...</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>保存...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Next marked</source>
        <translation>下一个标记</translation>
    </message>
    <message>
        <source>The next point beyond the tolerance, or row with a remark</source>
        <translation>下一个超限的点或有备注的行</translation>
    </message>
    <message>
        <source>Report...</source>
        <translation>报告...</translation>
    </message>
    <message>
        <source>Writes the check as a document to file with the job.</source>
        <translation>将检核结果写成文档，随项目归档。</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>限差</translation>
    </message>
    <message>
        <source>Points that are farther off are marked.</source>
        <translation>偏差超过限差的点会被标出。</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>本系统</translation>
    </message>
    <message>
        <source>Datum of latitude, longitude and height: the system&apos;s own, or WGS 84</source>
        <translation>纬度、经度和大地高的基准：本系统的基准或WGS 84</translation>
    </message>
    <message>
        <source>Which false origin and scale factor would meet the points best.</source>
        <translation>与各点最为符合的加常数和尺度比。</translation>
    </message>
    <message>
        <source>All is written: that can&apos;t be cancelled any more.</source>
        <translation>已全部写入：无法再取消。</translation>
    </message>
    <message>
        <source>Cancelled: %1</source>
        <translation>已取消：%1</translation>
    </message>
    <message>
        <source>Open points</source>
        <translation>打开点文件</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>所有文件</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>无法读取%1：%2</translation>
    </message>
    <message>
        <source>The clipboard</source>
        <translation>剪贴板</translation>
    </message>
    <message>
        <source>%1 has too many points; nothing of it is taken.</source>
        <translation>%1的点过多；未读入任何点。</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n row(s) read.</source>
        <translation>
            <numerusform>%1：已读取%n行。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 can&apos;t be read to its end: %2</source>
        <translation>无法完整读取%1：%2</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>读取</translation>
    </message>
    <message>
        <source>Computing</source>
        <translation>计算</translation>
    </message>
    <message>
        <source>Comparing names</source>
        <translation>比较点名</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>绘图</translation>
    </message>
    <message>
        <source>Counting</source>
        <translation>统计</translation>
    </message>
    <message>
        <source>Point at the picture for a point&apos;s name.</source>
        <translation>将鼠标移到图上，查看点名。</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>第%1行</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Only the first %1 rows are copied. Save all as CSV.</source>
        <translation>仅复制了前%1行。请将全部点保存为CSV。</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied.</source>
        <translation>
            <numerusform>已复制%n行。</numerusform>
        </translation>
    </message>
    <message>
        <source>CSV as shown</source>
        <translation>CSV（按显示）</translation>
    </message>
    <message>
        <source>CSV with all digits</source>
        <translation>CSV（全部位数）</translation>
    </message>
    <message>
        <source>Save points</source>
        <translation>保存点</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>保存</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n row(s) saved.</source>
        <translation>
            <numerusform>%1：已保存%n行。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 can&apos;t be saved: %2</source>
        <translation>无法保存%1：%2</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>%1: report saved.</source>
        <translation>%1：报告已保存。</translation>
    </message>
    <message>
        <source>No row is selected.</source>
        <translation>未选择任何行。</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) deleted; Ctrl+Z undoes that.</source>
        <translation>
            <numerusform>已删除%n行；Ctrl+Z可撤销。</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>没有可撤销的操作。</translation>
    </message>
    <message>
        <source>Undone: the points are as they were before.</source>
        <translation>已撤销：点已恢复原状。</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n point(s) from the table?</source>
        <translation>
            <numerusform>从表中移除全部%n个点吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>All points are removed; Ctrl+Z undoes that.</source>
        <translation>已移除所有点；Ctrl+Z可撤销。</translation>
    </message>
    <message>
        <source>All is within the tolerance and without a remark.</source>
        <translation>全部在限差内，且无备注。</translation>
    </message>
    <message>
        <source>Picture of the points</source>
        <translation>点位图</translation>
    </message>
    <message>
        <source>HTML, one file with its pictures</source>
        <translation>HTML（单个文件，含图片）</translation>
    </message>
    <message>
        <source>Save report</source>
        <translation>保存报告</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>第%1页，共%2页</translation>
    </message>
    <message>
        <source>no document could be made</source>
        <translation>无法生成文档</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>检核</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>点</translation>
    </message>
    <message>
        <source>Distortion</source>
        <translation>变形</translation>
    </message>
    <message>
        <source>Show angles in</source>
        <translation>角度显示为</translation>
    </message>
    <message>
        <source>A fit needs points with latitude, longitude, easting and northing.</source>
        <translation>拟合需要同时有纬度、经度、东坐标和北坐标的点。</translation>
    </message>
    <message>
        <source>A fit takes %1 points at most: leave some out.</source>
        <translation>拟合最多使用%1个点：请剔除一些点。</translation>
    </message>
    <message>
        <source>The projection gives no result at one of the points.</source>
        <translation>投影在其中一个点上无结果。</translation>
    </message>
    <message>
        <source>The points do not determine these values: hold one of them, or add points.</source>
        <translation>这些点不能确定这些值：请固定其中一个，或增加点。</translation>
    </message>
    <message>
        <source>east</source>
        <translation>东</translation>
    </message>
    <message>
        <source>north</source>
        <translation>北</translation>
    </message>
    <message>
        <source>west</source>
        <translation>西</translation>
    </message>
    <message>
        <source>south</source>
        <translation>南</translation>
    </message>
    <message>
        <source>Easting and northing are swapped.</source>
        <translation>东坐标与北坐标颠倒。</translation>
    </message>
    <message>
        <source>The given eastings count %1, the northings %2.</source>
        <translation>给定的东坐标向%1递增，北坐标向%2递增。</translation>
    </message>
    <message>
        <source>The given eastings and northings are in feet.</source>
        <translation>给定的东、北坐标以英尺为单位。</translation>
    </message>
    <message>
        <source>The given eastings and northings are metres that were taken for feet.</source>
        <translation>给定的东、北坐标是被当作英尺的米。</translation>
    </message>
    <message>
        <source>The given grid is turned by %1° against the computed one</source>
        <translation>给定坐标相对于计算坐标旋转了%1°</translation>
    </message>
    <message>
        <source>The points are of another zone: its central meridian is %1°.</source>
        <translation>这些点属于另一投影带：其中央子午线为%1°。</translation>
    </message>
    <message>
        <source>%1, as by a central meridian of %2°.</source>
        <translation>%1，相当于中央子午线为%2°。</translation>
    </message>
    <message>
        <source>There is nothing in it.</source>
        <translation>内容为空。</translation>
    </message>
    <message>
        <source>It is no text. Save a table as CSV first.</source>
        <translation>不是文本。请先将表格另存为CSV。</translation>
    </message>
    <message>
        <source>latitude</source>
        <translation>纬度</translation>
    </message>
    <message>
        <source>longitude</source>
        <translation>经度</translation>
    </message>
    <message>
        <source>height</source>
        <translation>高程</translation>
    </message>
    <message>
        <source>easting</source>
        <translation>东坐标</translation>
    </message>
    <message>
        <source>northing</source>
        <translation>北坐标</translation>
    </message>
    <message>
        <source>The line is too long for a point; its beginning is kept.</source>
        <translation>该行对一个点而言过长；保留其开头部分。</translation>
    </message>
    <message>
        <source>Can&apos;t be read: %1.</source>
        <translation>无法读取：%1。</translation>
    </message>
    <message>
        <source>Out of range: %1.</source>
        <translation>超出范围：%1。</translation>
    </message>
    <message>
        <source>There are no coordinates.</source>
        <translation>没有坐标。</translation>
    </message>
    <message>
        <source>Missing: %1.</source>
        <translation>缺少：%1。</translation>
    </message>
    <message>
        <source>The system defines no datum shift.</source>
        <translation>系统未定义基准转换。</translation>
    </message>
    <message>
        <source>The name occurs more than once.</source>
        <translation>点名重复出现。</translation>
    </message>
    <message>
        <source>Line: %1</source>
        <translation>原始行：%1</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>使用</translation>
    </message>
    <message>
        <source>Seven parameters need three points or more on both datums.</source>
        <translation>七参数需要三个或更多在两个基准上均已知的点。</translation>
    </message>
    <message>
        <source>Three parameters need one point or more on both datums.</source>
        <translation>三参数需要一个或更多在两个基准上均已知的点。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; are the same point: leave one of them out.</source>
        <translation>“%1”与“%2”是同一点：请剔除其中一个。</translation>
    </message>
    <message>
        <source>The points lie on a line, around which they leave the rotation open. Add a point beside the line, or take three parameters.</source>
        <translation>各点位于一条直线上，绕该直线的旋转无法确定。请在直线外增加一个点，或采用三参数。</translation>
    </message>
    <message>
        <source>No datum shift is as large as these points would have it. Are both places of each the same point, on the right datum?</source>
        <translation>基准转换不可能像这些点所给出的那样大。每个点的两个位置是否为同一点，且基准正确？</translation>
    </message>
    <message>
        <source>The area is too small to tell the translations from rotations and scale (correlation %1): the values mean nothing one by one, and hold within the area only. Three parameters are recommended if what they leave will do: a standard deviation of %2 m, against %3 m of seven.</source>
        <translation>区域太小，无法将平移与旋转和尺度区分开（相关系数%1）：各参数单独无意义，且仅在该区域内有效。若三参数的精度已够用，建议采用三参数：其中误差为%2 m，七参数为%3 m。</translation>
    </message>
    <message>
        <source>No projection: these values make none.</source>
        <translation>无投影：这些值不构成投影。</translation>
    </message>
    <message>
        <source>Rotations in the position-vector convention (EPSG 9606, PROJ towgs84). Figures published in the coordinate-frame convention (EPSG 9607): type them as they are, then reverse their signs.</source>
        <translation>旋转采用位置矢量约定（EPSG 9606，PROJ towgs84）。按坐标框架约定（EPSG 9607）公布的数值：请照原样输入，然后将符号取反。</translation>
    </message>
    <message>
        <source>Reverse rotation signs</source>
        <translation>旋转符号取反</translation>
    </message>
    <message>
        <source>From points...</source>
        <translation>由点求参数...</translation>
    </message>
    <message>
        <source>Stands in exported definitions; nothing is computed from it.</source>
        <translation>写入导出的定义中；不参与任何计算。</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Shift to WGS 84</source>
        <translation>到WGS 84的转换</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Seven parameters (three: the rest 0)</source>
        <translation>七参数（三参数时其余为0）</translation>
    </message>
    <message>
        <source>Estimates the shift from points known on both datums.</source>
        <translation>用在两个基准上均已知的点估计转换参数。</translation>
    </message>
    <message>
        <source>Datum shift</source>
        <translation>基准转换</translation>
    </message>
    <message>
        <source>Without a shift, coordinates on WGS 84 are unknown.</source>
        <translation>没有基准转换，WGS 84坐标未知。</translation>
    </message>
    <message>
        <source>This kind of shift is unknown here; it is kept as it is.</source>
        <translation>无法识别此类转换；保持原样。</translation>
    </message>
    <message>
        <source>The signs of all three rotations are reversed.</source>
        <translation>三个旋转参数的符号均已取反。</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>定义</translation>
    </message>
    <message>
        <source>PROJ definition</source>
        <translation>PROJ定义</translation>
    </message>
    <message>
        <source>WKT dialect</source>
        <translation>WKT格式</translation>
    </message>
    <message>
        <source>WKT 1 (GDAL)</source>
        <translation>WKT 1（GDAL）</translation>
    </message>
    <message>
        <source>WKT 1 (ESRI)</source>
        <translation>WKT 1（ESRI）</translation>
    </message>
    <message>
        <source>WKT 2:2019</source>
        <translation>WKT 2:2019</translation>
    </message>
    <message>
        <source>With identifier</source>
        <translation>含标识符</translation>
    </message>
    <message>
        <source>Save as .prj</source>
        <translation>另存为.prj</translation>
    </message>
    <message>
        <source>Save group...</source>
        <translation>保存分组...</translation>
    </message>
    <message>
        <source>WKT</source>
        <translation>WKT</translation>
    </message>
    <message>
        <source>Where from</source>
        <translation>来源</translation>
    </message>
    <message>
        <source>From text...</source>
        <translation>从文本读取...</translation>
    </message>
    <message>
        <source>This form can&apos;t express the system.</source>
        <translation>此格式无法表达该系统。</translation>
    </message>
    <message>
        <source>This form can&apos;t carry the identifier.</source>
        <translation>此格式不能带标识符。</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>The file can&apos;t be written: %1</source>
        <translation>无法写入文件：%1</translation>
    </message>
    <message>
        <source>No coordinate system</source>
        <translation>没有坐标系统</translation>
    </message>
    <message>
        <source>%1 – choose a coordinate system in the tree</source>
        <translation>%1 – 请在树中选择坐标系统</translation>
    </message>
    <message>
        <source>Forward to the edited values</source>
        <translation>恢复编辑后的值</translation>
    </message>
    <message>
        <source>Back to the values before</source>
        <translation>返回之前的值</translation>
    </message>
    <message>
        <source>Ellipsoid</source>
        <translation>椭球</translation>
    </message>
    <message>
        <source>Semi-minor axis b</source>
        <translation>短半轴b</translation>
    </message>
    <message>
        <source>Eccentricity e</source>
        <translation>第一偏心率e</translation>
    </message>
    <message>
        <source>Choose an ellipsoid.</source>
        <translation>请选择椭球。</translation>
    </message>
    <message>
        <source>Not in the list of ellipsoids.</source>
        <translation>不在椭球列表中。</translation>
    </message>
    <message>
        <source>The figures differ from the list&apos;s ellipsoid of this name.</source>
        <translation>数值与列表中同名椭球不同。</translation>
    </message>
    <message>
        <source>Decimal degrees</source>
        <translation>十进制度</translation>
    </message>
    <message>
        <source>Degrees, minutes, seconds</source>
        <translation>度、分、秒</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>已复制</translation>
    </message>
    <message>
        <source>Metre</source>
        <translation>米</translation>
    </message>
    <message>
        <source>International foot, 0.3048 m</source>
        <translation>国际英尺，0.3048 m</translation>
    </message>
    <message>
        <source>US survey foot, 1200/3937 m</source>
        <translation>美国测量英尺，1200/3937 m</translation>
    </message>
    <message>
        <source>Lengths in metres (m), international feet (ft) or US survey feet (ftUS)</source>
        <translation>长度单位：米（m）、国际英尺（ft）或美国测量英尺（ftUS）</translation>
    </message>
    <message>
        <source>From text</source>
        <translation>从文本读取</translation>
    </message>
    <message>
        <source>Paste or type WKT, a PROJ definition, PROJJSON, or a code as EPSG:25832.</source>
        <translation>请粘贴或输入WKT、PROJ定义、PROJJSON，或EPSG:25832之类的代码。</translation>
    </message>
    <message>
        <source>Understood</source>
        <translation>解析结果</translation>
    </message>
    <message>
        <source>Understood:</source>
        <translation>解析结果：</translation>
    </message>
    <message>
        <source>Geoid model</source>
        <translation>大地水准面模型</translation>
    </message>
    <message>
        <source>Model file</source>
        <translation>模型文件</translation>
    </message>
    <message>
        <source>Model ellipsoid</source>
        <translation>模型椭球</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>（无）</translation>
    </message>
    <message>
        <source>Not in the list of geoid models.</source>
        <translation>不在大地水准面模型列表中。</translation>
    </message>
    <message>
        <source>The model refers to another ellipsoid than the system.</source>
        <translation>模型所参照的椭球与系统的不同。</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>方法</translation>
    </message>
    <message>
        <source>Projection method</source>
        <translation>投影方法</translation>
    </message>
    <message>
        <source>Choose the method</source>
        <translation>请选择方法</translation>
    </message>
    <message>
        <source>Projection</source>
        <translation>投影</translation>
    </message>
    <message>
        <source>Still to choose.</source>
        <translation>尚待选择。</translation>
    </message>
    <message>
        <source>A latitude goes with N or S.</source>
        <translation>纬度用N或S。</translation>
    </message>
    <message>
        <source>A longitude goes with E or W.</source>
        <translation>经度用E或W。</translation>
    </message>
    <message>
        <source>An azimuth goes without a letter.</source>
        <translation>方位角不带字母。</translation>
    </message>
    <message>
        <source>Use a decimal point, not a comma.</source>
        <translation>小数点请用“.”，不要用逗号。</translation>
    </message>
    <message>
        <source>Not an angle. Examples: 7.5, 7 30 00, 7°30&apos;00&quot;.</source>
        <translation>不是角度。示例：7.5，7 30 00，7°30&apos;00&quot;。</translation>
    </message>
    <message>
        <source>Only the last part may have decimals.</source>
        <translation>只有最后一部分可以带小数。</translation>
    </message>
    <message>
        <source>Minutes must be less than 60.</source>
        <translation>分必须小于60。</translation>
    </message>
    <message>
        <source>Seconds must be less than 60.</source>
        <translation>秒必须小于60。</translation>
    </message>
    <message>
        <source>Give either a sign or a letter.</source>
        <translation>正负号与字母只能用其一。</translation>
    </message>
    <message>
        <source>Semi-major axis a</source>
        <translation>长半轴a</translation>
    </message>
    <message>
        <source>Inverse flattening 1/f</source>
        <translation>扁率倒数1/f</translation>
    </message>
    <message>
        <source>Translation X</source>
        <translation>X平移</translation>
    </message>
    <message>
        <source>Translation Y</source>
        <translation>Y平移</translation>
    </message>
    <message>
        <source>Translation Z</source>
        <translation>Z平移</translation>
    </message>
    <message>
        <source>Rotation X</source>
        <translation>X旋转</translation>
    </message>
    <message>
        <source>Rotation Y</source>
        <translation>Y旋转</translation>
    </message>
    <message>
        <source>Rotation Z</source>
        <translation>Z旋转</translation>
    </message>
    <message>
        <source>Scale difference</source>
        <translation>尺度变化</translation>
    </message>
    <message>
        <source>A sphere.</source>
        <translation>球体。</translation>
    </message>
    <message>
        <source>Unusual for the Earth.</source>
        <translation>对地球椭球而言数值异常。</translation>
    </message>
    <message>
        <source>Unusually large.</source>
        <translation>异常偏大。</translation>
    </message>
    <message>
        <source>Nothing can be computed: the projection module is not installed.</source>
        <translation>无法计算：未安装投影模块。</translation>
    </message>
    <message>
        <source>These parameters give no projection that can be computed.</source>
        <translation>这些参数不构成可计算的投影。</translation>
    </message>
    <message>
        <source>The model names no file.</source>
        <translation>模型未指定文件。</translation>
    </message>
    <message>
        <source>Not in the folder of geoid models.</source>
        <translation>不在大地水准面模型文件夹中。</translation>
    </message>
    <message>
        <source>The folder of geoid models has &quot;%1&quot; instead.</source>
        <translation>大地水准面模型文件夹中有的是“%1”。</translation>
    </message>
    <message>
        <source>Not a file.</source>
        <translation>不是文件。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>文件为空。</translation>
    </message>
    <message>
        <source>Not a length in %1 with a decimal point.</source>
        <translation>不是以%1为单位、带小数点的长度。</translation>
    </message>
    <message>
        <source>Allowed: 0 (sphere), or more than 1.</source>
        <translation>允许：0（球体），或大于1。</translation>
    </message>
    <message>
        <source>Allowed: between %1 and %2.</source>
        <translation>允许：%1与%2之间（不含端点）。</translation>
    </message>
    <message>
        <source>Allowed: ±%1.</source>
        <translation>允许：±%1。</translation>
    </message>
    <message>
        <source>Allowed: %1 to %2.</source>
        <translation>允许：%1～%2。</translation>
    </message>
    <message>
        <source>A value is needed.</source>
        <translation>需要一个值。</translation>
    </message>
    <message>
        <source>Only digits and a decimal point.</source>
        <translation>只能用数字和小数点。</translation>
    </message>
    <message>
        <source>Datum shift to WGS 84: none</source>
        <translation>到WGS 84的基准转换：无</translation>
    </message>
    <message>
        <source>Datum shift to WGS 84: %1</source>
        <translation>到WGS 84的基准转换：%1</translation>
    </message>
    <message>
        <source>Pasted text, %1</source>
        <translation>粘贴的文本，%1</translation>
    </message>
    <message>
        <source>The text counts in %1, the record in metres.</source>
        <translation>文本以%1为单位，本系统以米为单位。</translation>
    </message>
    <message>
        <source>Its datum shift is by grids, or of another kind, and is left out.</source>
        <translation>其基准转换采用格网或其他方式，已略去。</translation>
    </message>
    <message>
        <source>Its heights are left out.</source>
        <translation>其高程部分已略去。</translation>
    </message>
    <message>
        <source>The registry has withdrawn it.</source>
        <translation>注册库已将其废止。</translation>
    </message>
    <message>
        <source>(line %1, column %2)</source>
        <translation>（第%1行，第%2列）</translation>
    </message>
    <message>
        <source>Ellipsoid: %1, a %2 m, 1/f %3</source>
        <translation>椭球：%1，a %2 m，1/f %3</translation>
    </message>
    <message>
        <source>Datum: %1</source>
        <translation>基准：%1</translation>
    </message>
    <message>
        <source>not named</source>
        <translation>未命名</translation>
    </message>
    <message>
        <source>No projection: latitudes of the points equal, or the first 0.</source>
        <translation>无投影：两点纬度相等，或第一点纬度为0。</translation>
    </message>
    <message>
        <source>No projection: the standard parallels cancel out.</source>
        <translation>无投影：两条标准纬线相互抵消。</translation>
    </message>
    <message>
        <source>No projection yet: the system has no ellipsoid.</source>
        <translation>尚无投影：系统没有椭球。</translation>
    </message>
    <message>
        <source>No projection yet: choose the method.</source>
        <translation>尚无投影：请选择方法。</translation>
    </message>
    <message>
        <source>No projection: the method &quot;%1&quot; is unknown.</source>
        <translation>无投影：未知的方法“%1”。</translation>
    </message>
    <message>
        <source>No projection: the definition fits none of the methods.</source>
        <translation>无投影：定义与任何一种方法均不符。</translation>
    </message>
    <message>
        <source>No projection: &quot;%1&quot; is missing or wrong.</source>
        <translation>无投影：“%1”缺失或有误。</translation>
    </message>
    <message>
        <source>No projection: a standard parallel needs the scale factor 1.</source>
        <translation>无投影：给定标准纬线时尺度比须为1。</translation>
    </message>
    <message>
        <source>No projection: the scale factor is missing.</source>
        <translation>无投影：缺少尺度比。</translation>
    </message>
    <message>
        <source>Must be 1: the standard parallel sets the scale.</source>
        <translation>必须为1：尺度由标准纬线确定。</translation>
    </message>
    <message>
        <source>Unusual: scale factors lie close to 1.</source>
        <translation>数值异常：尺度比通常接近1。</translation>
    </message>
    <message>
        <source>Without effect: the origin is no pole.</source>
        <translation>不起作用：原点不是极点。</translation>
    </message>
    <message>
        <source>With 0° this is the plain Mercator projection.</source>
        <translation>为0°时即普通墨卡托投影。</translation>
    </message>
    <message>
        <source>Usually equal to the latitude of origin.</source>
        <translation>通常等于原点纬度。</translation>
    </message>
    <message>
        <source>The standard parallels nearly cancel out.</source>
        <translation>两条标准纬线几乎相互抵消。</translation>
    </message>
    <message>
        <source>Gives the line of %1°. For the line of this azimuth, type %2°.</source>
        <translation>得到的是%1°的线。若要此方位角的线，请输入%2°。</translation>
    </message>
    <message>
        <source>Zone %1 of UTM has the central meridian %2°.</source>
        <translation>UTM第%1带的中央子午线为%2°。</translation>
    </message>
    <message>
        <source>Does not fit zone %1 of the false easting.</source>
        <translation>与东向加常数中的带号%1不符。</translation>
    </message>
    <message>
        <source>Latitude of origin</source>
        <translation>原点纬度</translation>
    </message>
    <message>
        <source>Latitude of centre</source>
        <translation>中心纬度</translation>
    </message>
    <message>
        <source>Longitude of origin</source>
        <translation>原点经度</translation>
    </message>
    <message>
        <source>Longitude of centre</source>
        <translation>中心经度</translation>
    </message>
    <message>
        <source>Latitude of point 1</source>
        <translation>点1纬度</translation>
    </message>
    <message>
        <source>Longitude of point 1</source>
        <translation>点1经度</translation>
    </message>
    <message>
        <source>Latitude of point 2</source>
        <translation>点2纬度</translation>
    </message>
    <message>
        <source>Longitude of point 2</source>
        <translation>点2经度</translation>
    </message>
    <message>
        <source>Azimuth of the line</source>
        <translation>中心线方位角</translation>
    </message>
    <message>
        <source>Standard parallel 1</source>
        <translation>标准纬线1</translation>
    </message>
    <message>
        <source>Standard parallel 2</source>
        <translation>标准纬线2</translation>
    </message>
    <message>
        <source>Easting at centre</source>
        <translation>中心东坐标</translation>
    </message>
    <message>
        <source>Northing at centre</source>
        <translation>中心北坐标</translation>
    </message>
    <message>
        <source>Gauss-Krüger (scale factor 1)</source>
        <translation>高斯-克吕格（尺度比1）</translation>
    </message>
    <message>
        <source>Transverse Mercator</source>
        <translation>横轴墨卡托</translation>
    </message>
    <message>
        <source>Mercator</source>
        <translation>墨卡托</translation>
    </message>
    <message>
        <source>Mercator (standard parallel)</source>
        <translation>墨卡托（标准纬线）</translation>
    </message>
    <message>
        <source>Oblique Mercator (azimuth)</source>
        <translation>斜轴墨卡托（方位角）</translation>
    </message>
    <message>
        <source>Stereographic</source>
        <translation>球面投影</translation>
    </message>
    <message>
        <source>Oblique Stereographic (double)</source>
        <translation>斜轴球面投影（双重）</translation>
    </message>
    <message>
        <source>Lambert Conic Conformal (1SP)</source>
        <translation>兰勃特等角圆锥（单标准纬线）</translation>
    </message>
    <message>
        <source>Lambert Conic Conformal (2SP)</source>
        <translation>兰勃特等角圆锥（双标准纬线）</translation>
    </message>
    <message>
        <source>Oblique Mercator (two points)</source>
        <translation>斜轴墨卡托（两点）</translation>
    </message>
    <message>
        <source>Cassini-Soldner</source>
        <translation>卡西尼-索尔德纳</translation>
    </message>
    <message>
        <source>the name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>the ellipsoid&apos;s name</source>
        <translation>椭球名称</translation>
    </message>
    <message>
        <source>the projection method</source>
        <translation>投影方法</translation>
    </message>
    <message>
        <source>the datum shift</source>
        <translation>基准转换</translation>
    </message>
    <message>
        <source>This form can&apos;t be imported again.</source>
        <translation>此格式无法再导入。</translation>
    </message>
    <message>
        <source>Does not come back with an import of this form: %1.</source>
        <translation>导入此格式时无法还原：%1。</translation>
    </message>
    <message>
        <source>Other software may count easting and northing from the natural origin.</source>
        <translation>其他软件可能从自然原点起算东、北坐标。</translation>
    </message>
    <message>
        <source>Position-vector convention (EPSG 9606, PROJ towgs84)</source>
        <translation>位置矢量约定（EPSG 9606，PROJ towgs84）</translation>
    </message>
    <message>
        <source>of an unknown kind</source>
        <translation>类型未知</translation>
    </message>
    <message>
        <source>A geographic system: latitude and longitude, without a projection.</source>
        <translation>大地坐标系统：只有纬度和经度，没有投影。</translation>
    </message>
    <message>
        <source>A geocentric system: X, Y and Z, without a projection.</source>
        <translation>地心坐标系统：X、Y、Z，没有投影。</translation>
    </message>
    <message>
        <source>A system of heights, without a projection.</source>
        <translation>高程系统，没有投影。</translation>
    </message>
    <message>
        <source>A local system, without a place on the Earth.</source>
        <translation>局部坐标系统，在地球上没有位置。</translation>
    </message>
    <message>
        <source>No system that is projected.</source>
        <translation>不是投影坐标系统。</translation>
    </message>
    <message>
        <source>None of the methods holds this projection exactly: %1.</source>
        <translation>没有一种方法能准确表达此投影：%1。</translation>
    </message>
    <message>
        <source>The axes do not point east and north, but: %1.</source>
        <translation>坐标轴不指向东和北，而是：%1。</translation>
    </message>
    <message>
        <source>The grid is turned by %1°, not by the azimuth of the line, %2°.</source>
        <translation>格网旋转了%1°，而不是中心线方位角%2°。</translation>
    </message>
    <message>
        <source>With the azimuth 90° easting and northing can&apos;t count from the natural origin.</source>
        <translation>方位角为90°时，东、北坐标不能从自然原点起算。</translation>
    </message>
    <message>
        <source>The standard parallel, %1°, is not the latitude of origin, %2°, as this method has it.</source>
        <translation>标准纬线%1°不等于原点纬度%2°，与此方法不符。</translation>
    </message>
    <message>
        <source>A polar projection that names no pole, or does not say its scale in one way.</source>
        <translation>极投影未指明极点，或其尺度的表示方式不唯一。</translation>
    </message>
    <message>
        <source>A parameter is missing: %1.</source>
        <translation>缺少参数：%1。</translation>
    </message>
    <message>
        <source>A parameter is unknown: %1.</source>
        <translation>未知参数：%1。</translation>
    </message>
    <message>
        <source>A parameter does not belong to the method: %1.</source>
        <translation>参数不属于该方法：%1。</translation>
    </message>
    <message>
        <source>A parameter has two values: %1.</source>
        <translation>参数有两个值：%1。</translation>
    </message>
    <message>
        <source>A value is no number, or out of range: %1.</source>
        <translation>值不是数字，或超出范围：%1。</translation>
    </message>
    <message>
        <source>A unit is missing, or not what its name says: %1.</source>
        <translation>缺少单位，或单位与其名称不符：%1。</translation>
    </message>
    <message>
        <source>The prime meridian&apos;s longitude is not that of its name: %1.</source>
        <translation>起始子午线的经度与其名称不符：%1。</translation>
    </message>
    <message>
        <source>The ellipsoid is unknown, or its axes leave a doubt.</source>
        <translation>椭球未知，或其轴长存疑。</translation>
    </message>
    <message>
        <source>Twice, or with a number too many (a decimal comma?): %1.</source>
        <translation>重复出现，或多出一个数（小数逗号？）：%1。</translation>
    </message>
    <message>
        <source>PROJ makes another projection of these parameters, or none.</source>
        <translation>PROJ由这些参数得到另一种投影，或得不到投影。</translation>
    </message>
    <message>
        <source>The text names a file, which is not read: %1.</source>
        <translation>文本引用了文件，该文件不会被读取：%1。</translation>
    </message>
    <message>
        <source>No WKT, no PROJJSON, no PROJ definition and no code of a registry.</source>
        <translation>不是WKT、PROJJSON、PROJ定义，也不是注册库的代码。</translation>
    </message>
    <message>
        <source>Too long, or brackets too deep: up to %1 bytes are read.</source>
        <translation>过长，或括号嵌套过深：最多读取%1字节。</translation>
    </message>
    <message>
        <source>No registry has the system %1.</source>
        <translation>没有注册库包含系统%1。</translation>
    </message>
    <message>
        <source>PROJ can&apos;t read it: %1</source>
        <translation>PROJ无法读取：%1</translation>
    </message>
    <message>
        <source>%1 (deprecated)</source>
        <translation>%1（已废止）</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>northing comes first</source>
        <translation>北坐标在前</translation>
    </message>
    <message>
        <source>in US survey feet</source>
        <translation>单位为美国测量英尺</translation>
    </message>
    <message>
        <source>in international feet</source>
        <translation>单位为国际英尺</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>单位为%1</translation>
    </message>
    <message>
        <source>%1 is missing before the easting</source>
        <translation>东坐标前缺少带号%1</translation>
    </message>
    <message>
        <source>%1 before the easting is the zone</source>
        <translation>东坐标前的%1为带号</translation>
    </message>
    <message>
        <source>if %1</source>
        <translation>若%1</translation>
    </message>
    <message>
        <source>the same</source>
        <translation>相同</translation>
    </message>
    <message>
        <source>own</source>
        <translation>自有</translation>
    </message>
    <message>
        <source>With the system&apos;s datum shift, the place being on WGS 84</source>
        <translation>已用系统的基准转换，位置属于WGS 84</translation>
    </message>
    <message>
        <source>From the place to where the system has the coordinates; of several points the root mean square</source>
        <translation>从给定位置到系统中该坐标所在处；有多个点时为均方根</translation>
    </message>
    <message>
        <source>What is left of the distances without what all points have in common, as a datum shift: the smaller, the better the system fits</source>
        <translation>各距离去除所有点的共同部分（如基准转换）后的剩余：越小，系统越符合</translation>
    </message>
    <message>
        <source>Spread</source>
        <translation>离散度</translation>
    </message>
    <message>
        <source>EPSG</source>
        <translation>EPSG</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>条件</translation>
    </message>
    <message>
        <source>EPSG:%1, %2</source>
        <translation>EPSG:%1, %2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1及其他%n个</numerusform>
        </translation>
    </message>
    <message>
        <source>In the registry</source>
        <translation>注册库中的对应</translation>
    </message>
    <message>
        <source>The record is no system of the registry.</source>
        <translation>本系统不是注册库中的系统。</translation>
    </message>
    <message>
        <source>Says that this is %1.</source>
        <translation>声明这就是%1。</translation>
    </message>
    <message>
        <source>Says that this is %1, on the datum %2.</source>
        <translation>声明这就是%1，基准为%2。</translation>
    </message>
    <message>
        <source>The registry leaves the datum open.</source>
        <translation>注册库未规定基准。</translation>
    </message>
    <message>
        <source>The registry&apos;s datum is %1.</source>
        <translation>注册库中的基准为%1。</translation>
    </message>
    <message>
        <source>The registry counts in %1, the record in metres.</source>
        <translation>注册库以%1为单位，本系统以米为单位。</translation>
    </message>
    <message>
        <source>The registry&apos;s figures differ a little.</source>
        <translation>注册库中的数值略有不同。</translation>
    </message>
    <message>
        <source>Looking through the EPSG registry...</source>
        <translation>正在查找EPSG注册库...</translation>
    </message>
    <message>
        <source>%1: the same to %2 mm over its area</source>
        <translation>%1：在其适用区域内相差不超过%2 mm</translation>
    </message>
    <message>
        <source>Also %1</source>
        <translation>另有%1</translation>
    </message>
    <message>
        <source>No system of the EPSG registry is like it</source>
        <translation>EPSG注册库中没有与之相似的系统</translation>
    </message>
    <message>
        <source>As %1, but: %2</source>
        <translation>与%1相似，但：%2</translation>
    </message>
    <message>
        <source>%1 %2 (there %3)</source>
        <translation>%1 %2（库中为%3）</translation>
    </message>
    <message>
        <source>EPSG code, words of the name or of the area</source>
        <translation>EPSG代码、名称或区域中的词</translation>
    </message>
    <message>
        <source>Deprecated ones too</source>
        <translation>包括已废止的</translation>
    </message>
    <message>
        <source>Covers the point</source>
        <translation>包含该点</translation>
    </message>
    <message>
        <source>Systems found: %1</source>
        <translation>找到的系统：%1</translation>
    </message>
    <message>
        <source>A place, roughly, and the coordinates that it has in the unknown system; more points narrow it down.</source>
        <translation>一个大致位置及其在未知系统中的坐标；点越多，范围越小。</translation>
    </message>
    <message>
        <source>Paste rows</source>
        <translation>粘贴多行</translation>
    </message>
    <message>
        <source>Lines of latitude, longitude, first and second coordinate</source>
        <translation>每行依次为纬度、经度、第一坐标、第二坐标</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>正在搜索...</translation>
    </message>
    <message>
        <source>Systems found so far: %1</source>
        <translation>目前找到的系统：%1</translation>
    </message>
    <message>
        <source>No system that is used there can have these coordinates.</source>
        <translation>当地使用的系统中，没有一个能有这样的坐标。</translation>
    </message>
    <message>
        <source>Distances are without datum shift, which can move a place by some hundred metres.</source>
        <translation>距离未计基准转换，后者可使位置移动数百米。</translation>
    </message>
    <message numerus="yes">
        <source>No system gives these coordinates within 50 km of the place. The nearest %n:</source>
        <translation>
            <numerusform>没有系统能使这些坐标落在该位置50 km以内。最近的%n个：</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 from the place, with the system&apos;s datum shift</source>
        <translation>距该位置%1，已用系统的基准转换</translation>
    </message>
    <message>
        <source>%1 from the place, without datum shift</source>
        <translation>距该位置%1，未用基准转换</translation>
    </message>
    <message>
        <source>, %1 with the one below</source>
        <translation>，用下方的转换为%1</translation>
    </message>
    <message>
        <source>Nothing to paste: lines of latitude, longitude and two coordinates.</source>
        <translation>没有可粘贴的内容：每行应有纬度、经度和两个坐标。</translation>
    </message>
    <message>
        <source>First coordinate</source>
        <translation>第一坐标</translation>
    </message>
    <message>
        <source>Second coordinate</source>
        <translation>第二坐标</translation>
    </message>
    <message>
        <source>%1 of point %2</source>
        <translation>点%2的%1</translation>
    </message>
    <message>
        <source>Point %1, %2: %3</source>
        <translation>点%1，%2：%3</translation>
    </message>
    <message>
        <source>%1, accuracy %2 m</source>
        <translation>%1，精度%2 m</translation>
    </message>
    <message>
        <source>From registry</source>
        <translation>从注册库选取</translation>
    </message>
    <message>
        <source>By name or code</source>
        <translation>按名称或代码</translation>
    </message>
    <message>
        <source>From coordinates</source>
        <translation>按坐标</translation>
    </message>
    <message>
        <source>Datum shift to WGS 84</source>
        <translation>到WGS 84的基准转换</translation>
    </message>
    <message>
        <source>Copies this system&apos;s ellipsoid, projection, datum shift and geoid model; name and remark stay.</source>
        <translation>复制此系统的椭球、投影、基准转换和大地水准面模型；名称和备注不变。</translation>
    </message>
    <message>
        <source>As in the catalogue</source>
        <translation>与目录中相同</translation>
    </message>
    <message>
        <source>Of the own catalogue: %1</source>
        <translation>自有目录：%1</translation>
    </message>
    <message>
        <source>The file is there already.</source>
        <translation>文件已存在。</translation>
    </message>
    <message>
        <source>The file there is an older one.</source>
        <translation>现有的是较旧的文件。</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>已取消。</translation>
    </message>
    <message>
        <source>Left out. %1</source>
        <translation>已略去。%1</translation>
    </message>
    <message>
        <source>There already</source>
        <translation>已存在</translation>
    </message>
    <message>
        <source>Saved. %1</source>
        <translation>已保存。%1</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>已保存</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>已保存：%1</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>已略去：%1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Save group as .prj</source>
        <translation>将分组另存为.prj</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>浏览...</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>Copy summary</source>
        <translation>复制摘要</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>覆盖</translation>
    </message>
    <message>
        <source>Keep existing</source>
        <translation>保留现有</translation>
    </message>
    <message numerus="yes">
        <source>There already: %n of %1 files. Overwrite them?</source>
        <translation>
            <numerusform>%1个文件中已有%n个存在。是否覆盖？</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no such folder.</source>
        <translation>没有此文件夹。</translation>
    </message>
    <message>
        <source>Systems: %1</source>
        <translation>坐标系统：%1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Shift from points</source>
        <translation>由点求转换参数</translation>
    </message>
    <message>
        <source>Own datum</source>
        <translation>本系统基准</translation>
    </message>
    <message>
        <source>Latitude, longitude, height</source>
        <translation>纬度、经度、大地高</translation>
    </message>
    <message>
        <source>Easting, northing, height</source>
        <translation>东坐标、北坐标、大地高</translation>
    </message>
    <message>
        <source>Geocentric X, Y, Z</source>
        <translation>地心坐标X、Y、Z</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Seven</source>
        <translation>七参数</translation>
    </message>
    <message>
        <source>Three</source>
        <translation>三参数</translation>
    </message>
    <message>
        <source>Points are typed, or pasted as lines: name and three numbers on either datum.</source>
        <translation>点可输入，或按行粘贴：点名及两个基准上各三个数。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>建议</translation>
    </message>
    <message>
        <source>Just enough points: nothing is left over to tell how good the shift is.</source>
        <translation>点数刚好够用：没有多余观测来评定转换的精度。</translation>
    </message>
    <message>
        <source>Standard deviation of a coordinate: %1 m (redundancy %2).</source>
        <translation>单个坐标的中误差：%1 m（多余观测数%2）。</translation>
    </message>
    <message>
        <source>%1 with %2 %3</source>
        <translation>%1与%2 %3</translation>
    </message>
    <message>
        <source>Largest correlations: %1.</source>
        <translation>最大相关系数：%1。</translation>
    </message>
    <message>
        <source>Lines that can&apos;t be used: %1.</source>
        <translation>无法使用的行数：%1。</translation>
    </message>
    <message>
        <source>The projection gives no result here.</source>
        <translation>投影在此处无结果。</translation>
    </message>
    <message>
        <source>This place is not on the Earth.</source>
        <translation>此位置不在地球上。</translation>
    </message>
    <message>
        <source>The other points speak against this one: check it, or leave it out.</source>
        <translation>其余各点与此点不符：请检查，或将其剔除。</translation>
    </message>
    <message>
        <source>Easting, m</source>
        <translation>东坐标/m</translation>
    </message>
    <message>
        <source>Northing, m</source>
        <translation>北坐标/m</translation>
    </message>
    <message>
        <source>Height, m</source>
        <translation>大地高/m</translation>
    </message>
    <message>
        <source>WGS 84 X, m</source>
        <translation>WGS 84 X/m</translation>
    </message>
    <message>
        <source>WGS 84 latitude</source>
        <translation>WGS 84纬度</translation>
    </message>
    <message>
        <source>WGS 84 Y, m</source>
        <translation>WGS 84 Y/m</translation>
    </message>
    <message>
        <source>WGS 84 longitude</source>
        <translation>WGS 84经度</translation>
    </message>
    <message>
        <source>WGS 84 Z, m</source>
        <translation>WGS 84 Z/m</translation>
    </message>
    <message>
        <source>WGS 84 height, m</source>
        <translation>WGS 84大地高/m</translation>
    </message>
    <message>
        <source>Before, m</source>
        <translation>之前/m</translation>
    </message>
    <message>
        <source>East, mm</source>
        <translation>东向/mm</translation>
    </message>
    <message>
        <source>North, mm</source>
        <translation>北向/mm</translation>
    </message>
    <message>
        <source>Up, mm</source>
        <translation>垂向/mm</translation>
    </message>
    <message>
        <source>Smallest value: %1 %2 at easting %3, northing %4.</source>
        <translation>最小值：%1 %2，位于东坐标%3、北坐标%4。</translation>
    </message>
    <message>
        <source>Largest value: %1 %2 at easting %3, northing %4.</source>
        <translation>最大值：%1 %2，位于东坐标%3、北坐标%4。</translation>
    </message>
    <message>
        <source>The picture: easting %1 to %2, northing %3 to %4, in %5.</source>
        <translation>图幅：东坐标%1～%2，北坐标%3～%4，单位%5。</translation>
    </message>
    <message>
        <source>The arrow keys move a mark over it.</source>
        <translation>可用方向键在图上移动标记。</translation>
    </message>
    <message>
        <source>The picture is empty.</source>
        <translation>图为空。</translation>
    </message>
    <message>
        <source>%1 before</source>
        <translation>拟合前的%1</translation>
    </message>
    <message>
        <source>First lines</source>
        <translation>前几行</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Points drawn: %1, beyond the tolerance: %2, left out: %3.</source>
        <translation>已绘点：%1，超限：%2，已剔除：%3。</translation>
    </message>
    <message>
        <source>Largest difference: %1 %2; differences are drawn %3.</source>
        <translation>最大差值：%1 %2；差值绘制比例%3。</translation>
    </message>
    <message>
        <source>Copy the PROJ definition</source>
        <translation>复制PROJ定义</translation>
    </message>
    <message>
        <source>Copy the WKT</source>
        <translation>复制WKT</translation>
    </message>
    <message>
        <source>This comma could part thousands: use a decimal point.</source>
        <translation>此逗号可能是千位分隔符：小数点请用“.”。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A name, and what is said of it</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Two sentences</extracomment>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>Systems found: %1.</source>
        <translation>找到的系统：%1。</translation>
    </message>
    <message>
        <source>Height</source>
        <comment>what a system says of heights</comment>
        <translation>高程</translation>
    </message>
</context>
<context>
    <name>DlgCoordSysGroups</name>
    <message>
        <source>CoordSysGroup</source>
        <translation>坐标系统</translation>
    </message>
    <message>
        <source>AddSysGroup</source>
        <translation>添加分组</translation>
    </message>
    <message>
        <source>ImportCoordSys</source>
        <translation>导入坐标系统</translation>
    </message>
    <message>
        <source>AddCoordSys</source>
        <translation>添加坐标系统</translation>
    </message>
    <message>
        <source>EditSysGroup</source>
        <translation>重命名分组</translation>
    </message>
    <message>
        <source>DelSysGroup</source>
        <translation>删除分组</translation>
    </message>
    <message>
        <source>EditSys</source>
        <translation>重命名坐标系统</translation>
    </message>
    <message>
        <source>DelSys</source>
        <translation>删除坐标系统</translation>
    </message>
    <message>
        <source>are you sure delete coord system group %1 ?</source>
        <translation>确定要删除分组%1吗？</translation>
    </message>
    <message>
        <source>are you sure delete coord system %1 ?</source>
        <translation>确定要删除坐标系统%1吗？</translation>
    </message>
    <message>
        <source>Selecte WKT file</source>
        <translation>选择WKT文件</translation>
    </message>
    <message>
        <source>Import file failed!</source>
        <translation>导入文件失败！</translation>
    </message>
    <message>
        <source>Import file isn&apos;t projection coordinates!</source>
        <translation>导入的文件不是投影坐标系统！</translation>
    </message>
    <message>
        <source>The Imported projection coordinates already exist in the group!</source>
        <translation>分组中已有所导入的坐标系统！</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>DlgInputName</name>
    <message>
        <source>please input name</source>
        <translation>请输入名称</translation>
    </message>
    <message>
        <source>please input valid content!</source>
        <translation>请输入有效的名称！</translation>
    </message>
    <message>
        <source>has same as coord group name!</source>
        <translation>已有同名的分组！</translation>
    </message>
    <message>
        <source>has same as coord system name!</source>
        <translation>已有同名的坐标系统！</translation>
    </message>
    <message>
        <source>information</source>
        <translation>提示</translation>
    </message>
</context>
<context>
    <name>QFile</name>
    <message>
        <source>Filename refers to a directory</source>
        <translation>文件名指向一个文件夹</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>未知错误</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>information</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Do you want to exit program?</source>
        <translation>要退出程序吗？</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>please input correct param!</source>
        <translation>请输入正确的参数！</translation>
    </message>
    <message>
        <source>Are you sure you want to delete ellipsoid [%1]?</source>
        <translation>确定要删除椭球[%1]吗？</translation>
    </message>
    <message>
        <source>has same name as system, whether cover?</source>
        <translation>已有同名的自有椭球，是否替换？</translation>
    </message>
    <message>
        <source>new add ellipsoid name can&apos;t same as system!</source>
        <translation>新椭球不能与程序自带的椭球同名！</translation>
    </message>
    <message>
        <source>Edit Ellipsoid</source>
        <translation>编辑椭球</translation>
    </message>
    <message>
        <source>Ellipsoid Name</source>
        <translation>椭球名称</translation>
    </message>
    <message>
        <source>ellipsoid a(m)</source>
        <translation>长半轴a（m）</translation>
    </message>
    <message>
        <source>ellipsoid f</source>
        <translation>扁率倒数1/f</translation>
    </message>
    <message>
        <source>Are you sure you want to delete geoid [%1]?</source>
        <translation>确定要删除大地水准面模型[%1]吗？</translation>
    </message>
    <message>
        <source>has same file name, whether or not covered?</source>
        <translation>已有同名的自有大地水准面模型，是否替换？</translation>
    </message>
    <message>
        <source>new geoid name can&apos;t same with system name!</source>
        <translation>新模型不能与程序自带的大地水准面模型同名！</translation>
    </message>
    <message>
        <source>New Geoid</source>
        <translation>大地水准面模型</translation>
    </message>
    <message>
        <source>Geoid Name</source>
        <translation>模型名称</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>文件路径</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>selete file</source>
        <translation>选择文件</translation>
    </message>
    <message>
        <source>Geiod File(*.ggf *.vgf)</source>
        <translation>大地水准面文件(*.ggf *.vgf)</translation>
    </message>
    <message>
        <source>AddGeoid</source>
        <translation>编辑大地水准面模型</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>VornCoordSysMainWindow</name>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Data is changed!</source>
        <translation>数据已更改，是否保存？</translation>
    </message>
    <message>
        <source>Coordinate System Manager</source>
        <translation>坐标系统管理器</translation>
    </message>
</context>
</TS>
