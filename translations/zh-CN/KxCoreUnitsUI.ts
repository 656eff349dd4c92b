<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>NumberFormat</name>
    <message>
        <source>Exponential</source>
        <translation>指数</translation>
    </message>
    <message>
        <source>exponential</source>
        <translation>指数 (小写)</translation>
    </message>
    <message>
        <source>Fixed Point</source>
        <translation>定点</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>general</source>
        <translation>常规 (小写)</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>分数</translation>
    </message>
</context>
<context>
    <name>UnitGroup</name>
    <message>
        <source>Dimensionless</source>
        <translation>无量纲</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>面积</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>体积</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>质量</translation>
    </message>
    <message>
        <source>Linear Weight</source>
        <translation>线密度</translation>
    </message>
    <message>
        <source>Amount of Substance</source>
        <translation>物质的量</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>Solid Angle</source>
        <translation>立体角</translation>
    </message>
    <message>
        <source>Area Density</source>
        <translation>面密度</translation>
    </message>
    <message>
        <source>Concentration</source>
        <translation>浓度</translation>
    </message>
    <message>
        <source>Parts-per</source>
        <translation>比率 (ppm, ppb)</translation>
    </message>
    <message>
        <source>Electric Current</source>
        <translation>电流</translation>
    </message>
    <message>
        <source>Electric Charge</source>
        <translation>电荷</translation>
    </message>
    <message>
        <source>Capacitance</source>
        <translation>电容</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>比特率</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>密度</translation>
    </message>
    <message>
        <source>Unit Weight</source>
        <translation>重度</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>能量</translation>
    </message>
    <message>
        <source>Volumetric Flow Rate</source>
        <translation>体积流量</translation>
    </message>
    <message>
        <source>Mass Flow Rate</source>
        <translation>质量流量</translation>
    </message>
    <message>
        <source>Flow Rate per Stroke</source>
        <translation>每冲程排量</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>力</translation>
    </message>
    <message>
        <source>Linear Force</source>
        <translation>线荷载</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>频率</translation>
    </message>
    <message>
        <source>Inductance</source>
        <translation>电感</translation>
    </message>
    <message>
        <source>Magnetic Flux Density</source>
        <translation>磁通密度</translation>
    </message>
    <message>
        <source>Magnetic Flux</source>
        <translation>磁通量</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>功率</translation>
    </message>
    <message>
        <source>Power per Unit of Volume</source>
        <translation>单位体积功率</translation>
    </message>
    <message>
        <source>Power per Unit of Mass</source>
        <translation>单位质量功率</translation>
    </message>
    <message>
        <source>Power per Unit of Area</source>
        <translation>单位面积功率</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>压力</translation>
    </message>
    <message>
        <source>Force Scale</source>
        <translation>力比例</translation>
    </message>
    <message>
        <source>Linear Force Scale</source>
        <translation>线荷载比例</translation>
    </message>
    <message>
        <source>Area Force Scale</source>
        <translation>面荷载比例</translation>
    </message>
    <message>
        <source>Linear Moment</source>
        <translation>线弯矩</translation>
    </message>
    <message>
        <source>Electrical Resistance</source>
        <translation>电阻</translation>
    </message>
    <message>
        <source>Electric Conductance</source>
        <translation>电导</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Computer Storage</source>
        <translation>存储容量</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Temperature Rate</source>
        <translation>温度变化率</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Torque</source>
        <translation>扭矩</translation>
    </message>
    <message>
        <source>Dynamic Viscosity</source>
        <translation>动力黏度</translation>
    </message>
    <message>
        <source>Kinematic Viscosity</source>
        <translation>运动黏度</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>加速度</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message>
        <source>Electric Potential</source>
        <translation>电位</translation>
    </message>
    <message>
        <source>Luminous Intensity</source>
        <translation>发光强度</translation>
    </message>
    <message>
        <source>Illuminance</source>
        <translation>照度</translation>
    </message>
    <message>
        <source>Luminous Energy</source>
        <translation>光量</translation>
    </message>
    <message>
        <source>Luminous Flux</source>
        <translation>光通量</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Luminous Emittance</source>
        <translation>光出射度</translation>
    </message>
    <message>
        <source>Luminous Efficacy</source>
        <translation>发光效率</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>摩擦压降</translation>
    </message>
    <message>
        <source>Rotational Point Spring Coefficient</source>
        <translation>点转动弹簧系数</translation>
    </message>
    <message>
        <source>Rotational Line Spring Coefficient</source>
        <translation>线转动弹簧系数</translation>
    </message>
    <message>
        <source>Heat Transfer Coefficient</source>
        <translation>传热系数</translation>
    </message>
    <message>
        <source>Airflow Density</source>
        <translation>风量密度</translation>
    </message>
    <message>
        <source>Airflow Divided by Volume</source>
        <translation>单位体积风量</translation>
    </message>
    <message>
        <source>Airflow Divided by Power</source>
        <translation>单位功率风量</translation>
    </message>
    <message>
        <source>Area Divided by Power</source>
        <translation>单位功率面积</translation>
    </message>
    <message>
        <source>Moment Scale</source>
        <translation>弯矩比例</translation>
    </message>
    <message>
        <source>Coefficient of Thermal Expansion</source>
        <translation>热膨胀系数</translation>
    </message>
    <message>
        <source>Magnetic Field Intensity</source>
        <translation>磁场强度</translation>
    </message>
    <message>
        <source>Thermal Conductivity</source>
        <translation>导热系数</translation>
    </message>
    <message>
        <source>Specific Heat</source>
        <translation>比热容</translation>
    </message>
    <message>
        <source>Permeability</source>
        <translation>透湿系数</translation>
    </message>
    <message>
        <source>Electrical Resistivity</source>
        <translation>电阻率</translation>
    </message>
    <message>
        <source>Specific Heat of Vaporization</source>
        <translation>汽化热</translation>
    </message>
</context>
<context>
    <name>UnitType</name>
    <message>
        <source>unitless</source>
        <translation>无单位</translation>
    </message>
    <message>
        <source>meter</source>
        <translatorcomment>CLDR: 米</translatorcomment>
        <translation>米</translation>
    </message>
    <message>
        <source>yottameter</source>
        <translatorcomment>CLDR: 尧米</translatorcomment>
        <translation>尧米</translation>
    </message>
    <message>
        <source>zettameter</source>
        <translatorcomment>CLDR: 泽米</translatorcomment>
        <translation>泽米</translation>
    </message>
    <message>
        <source>exameter</source>
        <translatorcomment>CLDR: 艾米</translatorcomment>
        <translation>艾米</translation>
    </message>
    <message>
        <source>petameter</source>
        <translatorcomment>CLDR: 拍米</translatorcomment>
        <translation>拍米</translation>
    </message>
    <message>
        <source>terameter</source>
        <translatorcomment>CLDR: 太米</translatorcomment>
        <translation>太米</translation>
    </message>
    <message>
        <source>gigameter</source>
        <translatorcomment>CLDR: 吉米</translatorcomment>
        <translation>吉米</translation>
    </message>
    <message>
        <source>megameter</source>
        <translatorcomment>CLDR: 兆米</translatorcomment>
        <translation>兆米</translation>
    </message>
    <message>
        <source>kilometer</source>
        <translatorcomment>CLDR: 公里</translatorcomment>
        <translation>公里</translation>
    </message>
    <message>
        <source>hectometer</source>
        <translatorcomment>CLDR: 百米</translatorcomment>
        <translation>百米</translation>
    </message>
    <message>
        <source>decameter</source>
        <translatorcomment>CLDR: 十米</translatorcomment>
        <translation>十米</translation>
    </message>
    <message>
        <source>decimeter</source>
        <translatorcomment>CLDR: 分米</translatorcomment>
        <translation>分米</translation>
    </message>
    <message>
        <source>centimeter</source>
        <translatorcomment>CLDR: 厘米</translatorcomment>
        <translation>厘米</translation>
    </message>
    <message>
        <source>millimeter</source>
        <translatorcomment>CLDR: 毫米</translatorcomment>
        <translation>毫米</translation>
    </message>
    <message>
        <source>micrometer</source>
        <translatorcomment>CLDR: 微米</translatorcomment>
        <translation>微米</translation>
    </message>
    <message>
        <source>nanometer</source>
        <translatorcomment>CLDR: 纳米</translatorcomment>
        <translation>纳米</translation>
    </message>
    <message>
        <source>picometer</source>
        <translatorcomment>CLDR: 皮米</translatorcomment>
        <translation>皮米</translation>
    </message>
    <message>
        <source>femtometer</source>
        <translatorcomment>CLDR: 飞米</translatorcomment>
        <translation>飞米</translation>
    </message>
    <message>
        <source>attometer</source>
        <translatorcomment>CLDR: 阿米</translatorcomment>
        <translation>阿米</translation>
    </message>
    <message>
        <source>zeptometer</source>
        <translatorcomment>CLDR: 仄米</translatorcomment>
        <translation>仄米</translation>
    </message>
    <message>
        <source>yoctometer</source>
        <translatorcomment>CLDR: 幺米</translatorcomment>
        <translation>幺米</translation>
    </message>
    <message>
        <source>inch</source>
        <translatorcomment>CLDR: 英寸</translatorcomment>
        <translation>英寸</translation>
    </message>
    <message>
        <source>foot</source>
        <translatorcomment>CLDR: 英尺</translatorcomment>
        <translation>英尺</translation>
    </message>
    <message>
        <source>foot (Benoit)</source>
        <translation>英尺 (伯努瓦)</translation>
    </message>
    <message>
        <source>foot (Clarke&apos;s; Cape)</source>
        <translation>英尺 (克拉克; 开普)</translation>
    </message>
    <message>
        <source>foot (Indian)</source>
        <translation>英尺 (印度)</translation>
    </message>
    <message>
        <source>foot (Sear&apos;s)</source>
        <translation>英尺 (西尔斯)</translation>
    </message>
    <message>
        <source>foot (U.S. Survey)</source>
        <translation>美国测量英尺</translation>
    </message>
    <message>
        <source>yard</source>
        <translatorcomment>CLDR: 码</translatorcomment>
        <translation>码</translation>
    </message>
    <message>
        <source>chain</source>
        <translation>测链</translation>
    </message>
    <message>
        <source>chain (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>测链 (拉姆斯登; 工程师)</translation>
    </message>
    <message>
        <source>furlong</source>
        <translatorcomment>CLDR: 弗隆</translatorcomment>
        <translation>弗隆</translation>
    </message>
    <message>
        <source>mile</source>
        <translatorcomment>CLDR: 英里</translatorcomment>
        <translation>英里</translation>
    </message>
    <message>
        <source>geographical mile</source>
        <translation>地理英里</translation>
    </message>
    <message>
        <source>mile (U.S. Survey)</source>
        <translation>美国测量英里</translation>
    </message>
    <message>
        <source>nautical mile</source>
        <translatorcomment>CLDR: 海里</translatorcomment>
        <translation>海里</translation>
    </message>
    <message>
        <source>statute mile</source>
        <translation>法定英里</translation>
    </message>
    <message>
        <source>nautical mile (admiralty)</source>
        <translation>海里 (英国海军部)</translation>
    </message>
    <message>
        <source>micron</source>
        <translation>微米 (micron)</translation>
    </message>
    <message>
        <source>microinch</source>
        <translatorcomment>CLDR: 微英寸</translatorcomment>
        <translation>微英寸</translation>
    </message>
    <message>
        <source>angstrom</source>
        <translation>埃</translation>
    </message>
    <message>
        <source>astronomical unit</source>
        <translatorcomment>CLDR: 天文单位</translatorcomment>
        <translation>天文单位</translation>
    </message>
    <message>
        <source>cable</source>
        <translation>链 (航海)</translation>
    </message>
    <message>
        <source>cubit</source>
        <translation>腕尺</translation>
    </message>
    <message>
        <source>fathom</source>
        <translatorcomment>CLDR: 英寻</translatorcomment>
        <translation>英寻</translation>
    </message>
    <message>
        <source>hand</source>
        <translation>手 (4 英寸)</translation>
    </message>
    <message>
        <source>light-year</source>
        <translatorcomment>CLDR: 光年</translatorcomment>
        <translation>光年</translation>
    </message>
    <message>
        <source>span</source>
        <translation>拃</translation>
    </message>
    <message>
        <source>span (cloth)</source>
        <translation>拃 (布料)</translation>
    </message>
    <message>
        <source>parsec</source>
        <translatorcomment>CLDR: 秒差距</translatorcomment>
        <translation>秒差距</translation>
    </message>
    <message>
        <source>nautical league</source>
        <translation>海里格</translation>
    </message>
    <message>
        <source>league</source>
        <translation>里格</translation>
    </message>
    <message>
        <source>mil</source>
        <translation>密耳</translation>
    </message>
    <message>
        <source>mil (Sweden and Norway)</source>
        <translation>斯堪的纳维亚英里 (瑞典和挪威)</translation>
    </message>
    <message>
        <source>link</source>
        <translation>令 (link)</translation>
    </message>
    <message>
        <source>link (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>令 (拉姆斯登; 工程师)</translation>
    </message>
    <message>
        <source>pace</source>
        <translation>步</translation>
    </message>
    <message>
        <source>palm</source>
        <translation>掌 (3 英寸)</translation>
    </message>
    <message>
        <source>rod</source>
        <translation>杆</translation>
    </message>
    <message>
        <source>rope</source>
        <translation>绳 (20 英尺)</translation>
    </message>
    <message>
        <source>skein</source>
        <translation>绞</translation>
    </message>
    <message>
        <source>caliber</source>
        <translation>口径</translation>
    </message>
    <message>
        <source>survey inch</source>
        <translation>测量英寸</translation>
    </message>
    <message>
        <source>survey yard</source>
        <translation>测量码</translation>
    </message>
    <message>
        <source>survey rod</source>
        <translation>测量杆</translation>
    </message>
    <message>
        <source>bolt</source>
        <translation>匹 (布)</translation>
    </message>
    <message>
        <source>square meter</source>
        <translatorcomment>CLDR: 平方米</translatorcomment>
        <translation>平方米</translation>
    </message>
    <message>
        <source>square inch</source>
        <translatorcomment>CLDR: 平方英寸</translatorcomment>
        <translation>平方英寸</translation>
    </message>
    <message>
        <source>square foot</source>
        <translatorcomment>CLDR: 平方英尺</translatorcomment>
        <translation>平方英尺</translation>
    </message>
    <message>
        <source>square yard</source>
        <translatorcomment>CLDR: 平方码</translatorcomment>
        <translation>平方码</translation>
    </message>
    <message>
        <source>acre</source>
        <translatorcomment>CLDR: 英亩</translatorcomment>
        <translation>英亩</translation>
    </message>
    <message>
        <source>section</source>
        <translation>平方英里地段</translation>
    </message>
    <message>
        <source>township</source>
        <translation>镇区 (36 平方英里)</translation>
    </message>
    <message>
        <source>hectare</source>
        <translatorcomment>CLDR: 公顷</translatorcomment>
        <translation>公顷</translation>
    </message>
    <message>
        <source>square kilometer</source>
        <translatorcomment>CLDR: 平方公里</translatorcomment>
        <translation>平方公里</translation>
    </message>
    <message>
        <source>square mile</source>
        <translatorcomment>CLDR: 平方英里</translatorcomment>
        <translation>平方英里</translation>
    </message>
    <message>
        <source>square centimeter</source>
        <translatorcomment>CLDR: 平方厘米</translatorcomment>
        <translation>平方厘米</translation>
    </message>
    <message>
        <source>square millimeter</source>
        <translation>平方毫米</translation>
    </message>
    <message>
        <source>circular mil</source>
        <translation>圆密耳</translation>
    </message>
    <message>
        <source>kilo-circular mil</source>
        <translation>千圆密耳</translation>
    </message>
    <message>
        <source>are</source>
        <translation>公亩</translation>
    </message>
    <message>
        <source>barn</source>
        <translation>靶恩</translation>
    </message>
    <message>
        <source>centare</source>
        <translation>平方米 (厘公亩)</translation>
    </message>
    <message>
        <source>square angstrom</source>
        <translation>平方埃</translation>
    </message>
    <message>
        <source>square bolt</source>
        <translation>平方匹</translation>
    </message>
    <message>
        <source>square cable</source>
        <translation>平方链 (航海)</translation>
    </message>
    <message>
        <source>square caliber</source>
        <translation>平方口径</translation>
    </message>
    <message>
        <source>square cubit</source>
        <translation>平方腕尺</translation>
    </message>
    <message>
        <source>square decimeter</source>
        <translation>平方分米</translation>
    </message>
    <message>
        <source>square fathom</source>
        <translation>平方英寻</translation>
    </message>
    <message>
        <source>square furlong</source>
        <translation>平方弗隆</translation>
    </message>
    <message>
        <source>square gigameter</source>
        <translation>平方吉米</translation>
    </message>
    <message>
        <source>square hand</source>
        <translation>平方手</translation>
    </message>
    <message>
        <source>square nautical league</source>
        <translation>平方海里格</translation>
    </message>
    <message>
        <source>square league (statute)</source>
        <translation>平方里格 (法定)</translation>
    </message>
    <message>
        <source>square light-year</source>
        <translation>平方光年</translation>
    </message>
    <message>
        <source>square link</source>
        <translation>平方令</translation>
    </message>
    <message>
        <source>square micron</source>
        <translation>平方微米 (micron)</translation>
    </message>
    <message>
        <source>square mile (UK nautical)</source>
        <translation>平方英里 (英国海里)</translation>
    </message>
    <message>
        <source>square mile (statute)</source>
        <translation>平方英里 (法定)</translation>
    </message>
    <message>
        <source>square millimicron</source>
        <translation>平方毫微米</translation>
    </message>
    <message>
        <source>square pace</source>
        <translation>平方步</translation>
    </message>
    <message>
        <source>square palm</source>
        <translation>平方掌</translation>
    </message>
    <message>
        <source>square parsec</source>
        <translation>平方秒差距</translation>
    </message>
    <message>
        <source>square perch</source>
        <translation>平方杆 (perch)</translation>
    </message>
    <message>
        <source>square rope</source>
        <translation>平方绳</translation>
    </message>
    <message>
        <source>square skein</source>
        <translation>平方绞</translation>
    </message>
    <message>
        <source>square span</source>
        <translation>平方拃</translation>
    </message>
    <message>
        <source>square survey foot</source>
        <translation>平方测量英尺</translation>
    </message>
    <message>
        <source>square chain</source>
        <translation>平方测链</translation>
    </message>
    <message>
        <source>square mil</source>
        <translation>平方密耳</translation>
    </message>
    <message>
        <source>square astronomical unit</source>
        <translation>平方天文单位</translation>
    </message>
    <message>
        <source>survey acre</source>
        <translation>测量英亩</translation>
    </message>
    <message>
        <source>square survey yard</source>
        <translation>平方测量码</translation>
    </message>
    <message>
        <source>board</source>
        <translation>板 (board)</translation>
    </message>
    <message>
        <source>cord</source>
        <translation>考得 (面积)</translation>
    </message>
    <message>
        <source>square microinch</source>
        <translation>平方微英寸</translation>
    </message>
    <message>
        <source>square micrometer</source>
        <translation>平方微米</translation>
    </message>
    <message>
        <source>liter</source>
        <translatorcomment>CLDR: 升</translatorcomment>
        <translation>升</translation>
    </message>
    <message>
        <source>cubic centimeter</source>
        <translatorcomment>CLDR: 立方厘米</translatorcomment>
        <translation>立方厘米</translation>
    </message>
    <message>
        <source>tablespoon</source>
        <translatorcomment>CLDR: 汤匙</translatorcomment>
        <translation>汤匙</translation>
    </message>
    <message>
        <source>tablespoon (Canadian)</source>
        <translation>汤匙 (加拿大)</translation>
    </message>
    <message>
        <source>tablespoon (U.S.)</source>
        <translation>汤匙 (美国)</translation>
    </message>
    <message>
        <source>fluid ounce (imperial)</source>
        <translation>液量盎司 (英制)</translation>
    </message>
    <message>
        <source>fluid ounce (U.S.)</source>
        <translation>液量盎司 (美制)</translation>
    </message>
    <message>
        <source>cup</source>
        <translation>杯</translation>
    </message>
    <message>
        <source>cup (Canadian)</source>
        <translation>杯 (加拿大)</translation>
    </message>
    <message>
        <source>cup (U.S.)</source>
        <translation>杯 (美国)</translation>
    </message>
    <message>
        <source>quart (imperial)</source>
        <translation>夸脱 (英制)</translation>
    </message>
    <message>
        <source>quart (U.S. fluid)</source>
        <translation>夸脱 (美制液量)</translation>
    </message>
    <message>
        <source>quart (U.S. dry)</source>
        <translation>夸脱 (美制干量)</translation>
    </message>
    <message>
        <source>gallon (imperial)</source>
        <translation>加仑 (英制)</translation>
    </message>
    <message>
        <source>gallon (U.S. fluid; Wine)</source>
        <translation>加仑 (美制液量; 葡萄酒)</translation>
    </message>
    <message>
        <source>gallon (U.S. dry)</source>
        <translation>加仑 (美制干量)</translation>
    </message>
    <message>
        <source>beer gallon</source>
        <translation>啤酒加仑</translation>
    </message>
    <message>
        <source>bushel (imperial)</source>
        <translation>蒲式耳 (英制)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry level)</source>
        <translation>蒲式耳 (美制平量)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry heaped)</source>
        <translation>蒲式耳 (美制堆量)</translation>
    </message>
    <message>
        <source>centiliter</source>
        <translatorcomment>CLDR: 厘升</translatorcomment>
        <translation>厘升</translation>
    </message>
    <message>
        <source>cubic foot</source>
        <translatorcomment>CLDR: 立方英尺</translatorcomment>
        <translation>立方英尺</translation>
    </message>
    <message>
        <source>cubic inch</source>
        <translatorcomment>CLDR: 立方英寸</translatorcomment>
        <translation>立方英寸</translation>
    </message>
    <message>
        <source>cubic meter</source>
        <translatorcomment>CLDR: 立方米</translatorcomment>
        <translation>立方米</translation>
    </message>
    <message>
        <source>cubic yard</source>
        <translatorcomment>CLDR: 立方码</translatorcomment>
        <translation>立方码</translation>
    </message>
    <message>
        <source>fluid dram</source>
        <translation>液量打兰 (美制)</translation>
    </message>
    <message>
        <source>microliter</source>
        <translatorcomment>CLDR: 微升</translatorcomment>
        <translation>微升</translation>
    </message>
    <message>
        <source>milliliter</source>
        <translatorcomment>CLDR: 毫升</translatorcomment>
        <translation>毫升</translation>
    </message>
    <message>
        <source>pint (imperial)</source>
        <translation>品脱 (英制)</translation>
    </message>
    <message>
        <source>pint (U.S. fluid)</source>
        <translation>品脱 (美制液量)</translation>
    </message>
    <message>
        <source>pint (U.S. dry)</source>
        <translation>品脱 (美制干量)</translation>
    </message>
    <message>
        <source>teaspoon</source>
        <translatorcomment>CLDR: 茶匙</translatorcomment>
        <translation>茶匙</translation>
    </message>
    <message>
        <source>teaspoon (Canadian)</source>
        <translation>茶匙 (加拿大)</translation>
    </message>
    <message>
        <source>teaspoon (U.S.)</source>
        <translation>茶匙 (美国)</translation>
    </message>
    <message>
        <source>teaspoon (imperial)</source>
        <translation>茶匙 (英制)</translation>
    </message>
    <message>
        <source>cubic millimeter</source>
        <translation>立方毫米</translation>
    </message>
    <message>
        <source>barrel (imperial)</source>
        <translation>桶 (英制)</translation>
    </message>
    <message>
        <source>barrel (petroleum)</source>
        <translation>桶 (石油)</translation>
    </message>
    <message>
        <source>barrel (U.S. dry)</source>
        <translation>桶 (美制干量)</translation>
    </message>
    <message>
        <source>barrel (U.S. fluid)</source>
        <translation>桶 (美制液量)</translation>
    </message>
    <message>
        <source>board-foot</source>
        <translation>板英尺</translation>
    </message>
    <message>
        <source>decistere</source>
        <translation>分立方米 (decistere)</translation>
    </message>
    <message>
        <source>dekaliter</source>
        <translatorcomment>CLDR: 十升</translatorcomment>
        <translation>十升</translation>
    </message>
    <message>
        <source>dekastere</source>
        <translation>十立方米 (dekastere)</translation>
    </message>
    <message>
        <source>dram</source>
        <translatorcomment>CLDR: 打兰</translatorcomment>
        <translation>打兰</translation>
    </message>
    <message>
        <source>firkin</source>
        <translation>费尔金</translation>
    </message>
    <message>
        <source>cubic angstrom</source>
        <translation>立方埃</translation>
    </message>
    <message>
        <source>cubic astronomical unit</source>
        <translation>立方天文单位</translation>
    </message>
    <message>
        <source>cubic bolt</source>
        <translation>立方匹</translation>
    </message>
    <message>
        <source>cubic cable</source>
        <translation>立方链 (航海)</translation>
    </message>
    <message>
        <source>cubic caliber</source>
        <translation>立方口径</translation>
    </message>
    <message>
        <source>cubic chain</source>
        <translation>立方测链</translation>
    </message>
    <message>
        <source>cubic cubit</source>
        <translation>立方腕尺</translation>
    </message>
    <message>
        <source>cubic fathom</source>
        <translation>立方英寻</translation>
    </message>
    <message>
        <source>cubic furlong</source>
        <translation>立方弗隆</translation>
    </message>
    <message>
        <source>cubic gigameter</source>
        <translation>立方吉米</translation>
    </message>
    <message>
        <source>cubic hand</source>
        <translation>立方手</translation>
    </message>
    <message>
        <source>cubic hectometer</source>
        <translation>立方百米</translation>
    </message>
    <message>
        <source>cubic nautical league</source>
        <translation>立方海里格</translation>
    </message>
    <message>
        <source>cubic league (statute)</source>
        <translation>立方里格 (法定)</translation>
    </message>
    <message>
        <source>cubic light-year</source>
        <translation>立方光年</translation>
    </message>
    <message>
        <source>cubic link</source>
        <translation>立方令</translation>
    </message>
    <message>
        <source>cubic mil</source>
        <translation>立方密耳</translation>
    </message>
    <message>
        <source>cubic mile (UK nautical)</source>
        <translation>立方英里 (英国海里)</translation>
    </message>
    <message>
        <source>cubic mile</source>
        <translatorcomment>CLDR: 立方英里</translatorcomment>
        <translation>立方英里</translation>
    </message>
    <message>
        <source>cubic nautical mile</source>
        <translation>立方海里</translation>
    </message>
    <message>
        <source>cubic mile (statute)</source>
        <translation>立方英里 (法定)</translation>
    </message>
    <message>
        <source>cubic millimicron</source>
        <translation>立方毫微米</translation>
    </message>
    <message>
        <source>cubic pace</source>
        <translation>立方步</translation>
    </message>
    <message>
        <source>cubic palm</source>
        <translation>立方掌</translation>
    </message>
    <message>
        <source>cubic parsec</source>
        <translation>立方秒差距</translation>
    </message>
    <message>
        <source>cubic perch</source>
        <translation>立方杆 (perch)</translation>
    </message>
    <message>
        <source>cubic rope</source>
        <translation>立方绳</translation>
    </message>
    <message>
        <source>cubic skein</source>
        <translation>立方绞</translation>
    </message>
    <message>
        <source>cubic span</source>
        <translation>立方拃</translation>
    </message>
    <message>
        <source>cubic survey foot</source>
        <translation>立方测量英尺</translation>
    </message>
    <message>
        <source>cubic decimeter</source>
        <translation>立方分米</translation>
    </message>
    <message>
        <source>tun</source>
        <translation>大桶</translation>
    </message>
    <message>
        <source>peck</source>
        <translation>配克</translation>
    </message>
    <message>
        <source>peck (U.S. dry)</source>
        <translation>配克 (美制干量)</translation>
    </message>
    <message>
        <source>peck (imperial)</source>
        <translation>配克 (英制)</translation>
    </message>
    <message>
        <source>minim (imperial)</source>
        <translation>量滴 (英制)</translation>
    </message>
    <message>
        <source>minim (U.S.)</source>
        <translation>量滴 (美制)</translation>
    </message>
    <message>
        <source>kiloliter</source>
        <translatorcomment>CLDR: 千升</translatorcomment>
        <translation>千升</translation>
    </message>
    <message>
        <source>hogshead (U.S.)</source>
        <translation>豪格海 (美制)</translation>
    </message>
    <message>
        <source>hogshead (imperial)</source>
        <translation>豪格海 (英制)</translation>
    </message>
    <message>
        <source>gill (imperial)</source>
        <translation>及耳 (英制)</translation>
    </message>
    <message>
        <source>gill (U.S.)</source>
        <translation>及耳 (美制)</translation>
    </message>
    <message>
        <source>cubic survey yard</source>
        <translation>立方测量码</translation>
    </message>
    <message>
        <source>cord-foot</source>
        <translation>考得英尺</translation>
    </message>
    <message>
        <source>cord (firewood)</source>
        <translation>考得 (木柴)</translation>
    </message>
    <message>
        <source>register ton</source>
        <translation>登记吨</translation>
    </message>
    <message>
        <source>acre-foot</source>
        <translatorcomment>CLDR: 英亩英尺</translatorcomment>
        <translation>英亩英尺</translation>
    </message>
    <message>
        <source>acre-inch</source>
        <translation>英亩英寸</translation>
    </message>
    <message>
        <source>cubic microinch</source>
        <translation>立方微英寸</translation>
    </message>
    <message>
        <source>cubic micrometer</source>
        <translation>立方微米</translation>
    </message>
    <message>
        <source>cubic kilometer</source>
        <translatorcomment>CLDR: 立方千米</translatorcomment>
        <translation>立方千米</translation>
    </message>
    <message>
        <source>kilogram</source>
        <translatorcomment>CLDR: 千克</translatorcomment>
        <translation>千克</translation>
    </message>
    <message>
        <source>gram</source>
        <translatorcomment>CLDR: 克</translatorcomment>
        <translation>克</translation>
    </message>
    <message>
        <source>yottagram</source>
        <translatorcomment>CLDR: 尧克</translatorcomment>
        <translation>尧克</translation>
    </message>
    <message>
        <source>zettagram</source>
        <translatorcomment>CLDR: 泽克</translatorcomment>
        <translation>泽克</translation>
    </message>
    <message>
        <source>exagram</source>
        <translatorcomment>CLDR: 艾克</translatorcomment>
        <translation>艾克</translation>
    </message>
    <message>
        <source>petagram</source>
        <translatorcomment>CLDR: 拍克</translatorcomment>
        <translation>拍克</translation>
    </message>
    <message>
        <source>teragram</source>
        <translatorcomment>CLDR: 太克</translatorcomment>
        <translation>太克</translation>
    </message>
    <message>
        <source>gigagram</source>
        <translatorcomment>CLDR: 吉克</translatorcomment>
        <translation>吉克</translation>
    </message>
    <message>
        <source>megagram</source>
        <translatorcomment>CLDR: 兆克</translatorcomment>
        <translation>兆克</translation>
    </message>
    <message>
        <source>hectogram</source>
        <translatorcomment>CLDR: 百克</translatorcomment>
        <translation>百克</translation>
    </message>
    <message>
        <source>decagram</source>
        <translatorcomment>CLDR: 十克</translatorcomment>
        <translation>十克</translation>
    </message>
    <message>
        <source>decigram</source>
        <translatorcomment>CLDR: 分克</translatorcomment>
        <translation>分克</translation>
    </message>
    <message>
        <source>centigram</source>
        <translatorcomment>CLDR: 厘克</translatorcomment>
        <translation>厘克</translation>
    </message>
    <message>
        <source>milligram</source>
        <translatorcomment>CLDR: 毫克</translatorcomment>
        <translation>毫克</translation>
    </message>
    <message>
        <source>microgram</source>
        <translatorcomment>CLDR: 微克</translatorcomment>
        <translation>微克</translation>
    </message>
    <message>
        <source>nanogram</source>
        <translatorcomment>CLDR: 纳克</translatorcomment>
        <translation>纳克</translation>
    </message>
    <message>
        <source>picogram</source>
        <translatorcomment>CLDR: 皮克</translatorcomment>
        <translation>皮克</translation>
    </message>
    <message>
        <source>femtogram</source>
        <translatorcomment>CLDR: 飞克</translatorcomment>
        <translation>飞克</translation>
    </message>
    <message>
        <source>attogram</source>
        <translatorcomment>CLDR: 阿克</translatorcomment>
        <translation>阿克</translation>
    </message>
    <message>
        <source>zeptogram</source>
        <translatorcomment>CLDR: 仄克</translatorcomment>
        <translation>仄克</translation>
    </message>
    <message>
        <source>yoctogram</source>
        <translatorcomment>CLDR: 幺克</translatorcomment>
        <translation>幺克</translation>
    </message>
    <message>
        <source>pound (meter)</source>
        <translation>公制磅</translation>
    </message>
    <message>
        <source>pound</source>
        <translatorcomment>CLDR: 磅</translatorcomment>
        <translation>磅</translation>
    </message>
    <message>
        <source>pound (troy)</source>
        <translation>金衡磅</translation>
    </message>
    <message>
        <source>ounce (avoirdupois)</source>
        <translation>常衡盎司</translation>
    </message>
    <message>
        <source>ounce (apothecary; troy)</source>
        <translation>药衡盎司 (金衡)</translation>
    </message>
    <message>
        <source>stone</source>
        <translatorcomment>CLDR: 英石</translatorcomment>
        <translation>英石</translation>
    </message>
    <message>
        <source>short ton</source>
        <translation>短吨</translation>
    </message>
    <message>
        <source>long ton</source>
        <translation>长吨</translation>
    </message>
    <message>
        <source>carat</source>
        <translatorcomment>CLDR: 克拉</translatorcomment>
        <translation>克拉</translation>
    </message>
    <message>
        <source>carat (metric)</source>
        <translation>克拉 (公制)</translation>
    </message>
    <message>
        <source>dram (avoirdupois)</source>
        <translation>常衡打兰</translation>
    </message>
    <message>
        <source>dram (apothecary; troy)</source>
        <translation>药衡打兰 (金衡)</translation>
    </message>
    <message>
        <source>pennyweight</source>
        <translation>英钱</translation>
    </message>
    <message>
        <source>tael</source>
        <translation>两</translation>
    </message>
    <message>
        <source>tola</source>
        <translation>托拉</translation>
    </message>
    <message>
        <source>long hundredweight</source>
        <translation>长担</translation>
    </message>
    <message>
        <source>short hundredweight</source>
        <translation>短担</translation>
    </message>
    <message>
        <source>grain</source>
        <translatorcomment>CLDR: 格令</translatorcomment>
        <translation>格令</translation>
    </message>
    <message>
        <source>pearl grain</source>
        <translation>珍珠格令</translation>
    </message>
    <message>
        <source>dalton</source>
        <translatorcomment>CLDR: 道尔顿</translatorcomment>
        <translation>道尔顿</translation>
    </message>
    <message>
        <source>kilodalton</source>
        <translatorcomment>CLDR: 千道尔顿</translatorcomment>
        <translation>千道尔顿</translation>
    </message>
    <message>
        <source>slug</source>
        <translation>斯勒格</translation>
    </message>
    <message>
        <source>kilogram per meter</source>
        <translatorcomment>CLDR: 每米千克</translatorcomment>
        <translation>每米千克</translation>
    </message>
    <message>
        <source>pound per foot</source>
        <translatorcomment>CLDR: 每英尺磅</translatorcomment>
        <translation>每英尺磅</translation>
    </message>
    <message>
        <source>mole</source>
        <translatorcomment>CLDR: 摩尔</translatorcomment>
        <translation>摩尔</translation>
    </message>
    <message>
        <source>yottamole</source>
        <translatorcomment>CLDR: 尧摩尔</translatorcomment>
        <translation>尧摩尔</translation>
    </message>
    <message>
        <source>zettamole</source>
        <translatorcomment>CLDR: 泽摩尔</translatorcomment>
        <translation>泽摩尔</translation>
    </message>
    <message>
        <source>examole</source>
        <translatorcomment>CLDR: 艾摩尔</translatorcomment>
        <translation>艾摩尔</translation>
    </message>
    <message>
        <source>petamole</source>
        <translatorcomment>CLDR: 拍摩尔</translatorcomment>
        <translation>拍摩尔</translation>
    </message>
    <message>
        <source>teramole</source>
        <translatorcomment>CLDR: 太摩尔</translatorcomment>
        <translation>太摩尔</translation>
    </message>
    <message>
        <source>gigamole</source>
        <translatorcomment>CLDR: 吉摩尔</translatorcomment>
        <translation>吉摩尔</translation>
    </message>
    <message>
        <source>megamole</source>
        <translatorcomment>CLDR: 兆摩尔</translatorcomment>
        <translation>兆摩尔</translation>
    </message>
    <message>
        <source>kilomole</source>
        <translatorcomment>CLDR: 千摩尔</translatorcomment>
        <translation>千摩尔</translation>
    </message>
    <message>
        <source>hectomole</source>
        <translatorcomment>CLDR: 百摩尔</translatorcomment>
        <translation>百摩尔</translation>
    </message>
    <message>
        <source>decamole</source>
        <translatorcomment>CLDR: 十摩尔</translatorcomment>
        <translation>十摩尔</translation>
    </message>
    <message>
        <source>decimole</source>
        <translatorcomment>CLDR: 分摩尔</translatorcomment>
        <translation>分摩尔</translation>
    </message>
    <message>
        <source>centimole</source>
        <translatorcomment>CLDR: 厘摩尔</translatorcomment>
        <translation>厘摩尔</translation>
    </message>
    <message>
        <source>millimole</source>
        <translatorcomment>CLDR: 毫摩尔</translatorcomment>
        <translation>毫摩尔</translation>
    </message>
    <message>
        <source>micromole</source>
        <translatorcomment>CLDR: 微摩尔</translatorcomment>
        <translation>微摩尔</translation>
    </message>
    <message>
        <source>nanomole</source>
        <translatorcomment>CLDR: 纳摩尔</translatorcomment>
        <translation>纳摩尔</translation>
    </message>
    <message>
        <source>picomole</source>
        <translatorcomment>CLDR: 皮摩尔</translatorcomment>
        <translation>皮摩尔</translation>
    </message>
    <message>
        <source>femtomole</source>
        <translatorcomment>CLDR: 飞摩尔</translatorcomment>
        <translation>飞摩尔</translation>
    </message>
    <message>
        <source>attomole</source>
        <translatorcomment>CLDR: 阿摩尔</translatorcomment>
        <translation>阿摩尔</translation>
    </message>
    <message>
        <source>zeptomole</source>
        <translatorcomment>CLDR: 仄摩尔</translatorcomment>
        <translation>仄摩尔</translation>
    </message>
    <message>
        <source>yoctomole</source>
        <translatorcomment>CLDR: 幺摩尔</translatorcomment>
        <translation>幺摩尔</translation>
    </message>
    <message>
        <source>radian</source>
        <translatorcomment>CLDR: 弧度</translatorcomment>
        <translation>弧度</translation>
    </message>
    <message>
        <source>degree</source>
        <translatorcomment>CLDR: 度</translatorcomment>
        <translation>度</translation>
    </message>
    <message>
        <source>milliradian</source>
        <translatorcomment>CLDR: 毫弧度</translatorcomment>
        <translation>毫弧度</translation>
    </message>
    <message>
        <source>grad</source>
        <translation>百分度</translation>
    </message>
    <message>
        <source>angular mil (NATO)</source>
        <translation>密位 (北约)</translation>
    </message>
    <message>
        <source>angular mil (Sweden)</source>
        <translation>密位 (瑞典)</translation>
    </message>
    <message>
        <source>angular mil (USSR)</source>
        <translation>密位 (苏联)</translation>
    </message>
    <message>
        <source>angle minute</source>
        <translatorcomment>CLDR: 弧分</translatorcomment>
        <translation>弧分</translation>
    </message>
    <message>
        <source>angle second</source>
        <translatorcomment>CLDR: 弧秒</translatorcomment>
        <translation>弧秒</translation>
    </message>
    <message>
        <source>milliarc second</source>
        <translation>毫角秒</translation>
    </message>
    <message>
        <source>steradian</source>
        <translation>球面度</translation>
    </message>
    <message>
        <source>gram per square meter</source>
        <translatorcomment>CLDR: 每平方米克</translatorcomment>
        <translation>每平方米克</translation>
    </message>
    <message>
        <source>gram per square inch</source>
        <translatorcomment>CLDR: 每平方英寸克</translatorcomment>
        <translation>每平方英寸克</translation>
    </message>
    <message>
        <source>nanogram per liter</source>
        <translatorcomment>CLDR: 每升纳克</translatorcomment>
        <translation>每升纳克</translation>
    </message>
    <message>
        <source>nanogram per deciliter</source>
        <translatorcomment>CLDR: 每分升纳克</translatorcomment>
        <translation>每分升纳克</translation>
    </message>
    <message>
        <source>nanogram per milliliter</source>
        <translatorcomment>CLDR: 每毫升纳克</translatorcomment>
        <translation>每毫升纳克</translation>
    </message>
    <message>
        <source>nanogram per microliter</source>
        <translatorcomment>CLDR: 每微升纳克</translatorcomment>
        <translation>每微升纳克</translation>
    </message>
    <message>
        <source>part per million</source>
        <translatorcomment>CLDR: 百万分之</translatorcomment>
        <translation>百万分之</translation>
    </message>
    <message>
        <source>part per billion</source>
        <translation>十亿分之</translation>
    </message>
    <message>
        <source>ampere</source>
        <translatorcomment>CLDR: 安培</translatorcomment>
        <translation>安培</translation>
    </message>
    <message>
        <source>yottaampere</source>
        <translatorcomment>CLDR: 尧安培</translatorcomment>
        <translation>尧安培</translation>
    </message>
    <message>
        <source>zettaampere</source>
        <translatorcomment>CLDR: 泽安培</translatorcomment>
        <translation>泽安培</translation>
    </message>
    <message>
        <source>exaampere</source>
        <translatorcomment>CLDR: 艾安培</translatorcomment>
        <translation>艾安培</translation>
    </message>
    <message>
        <source>petaampere</source>
        <translatorcomment>CLDR: 拍安培</translatorcomment>
        <translation>拍安培</translation>
    </message>
    <message>
        <source>teraampere</source>
        <translatorcomment>CLDR: 太安培</translatorcomment>
        <translation>太安培</translation>
    </message>
    <message>
        <source>gigaampere</source>
        <translatorcomment>CLDR: 吉安培</translatorcomment>
        <translation>吉安培</translation>
    </message>
    <message>
        <source>megaampere</source>
        <translatorcomment>CLDR: 兆安培</translatorcomment>
        <translation>兆安培</translation>
    </message>
    <message>
        <source>kiloampere</source>
        <translatorcomment>CLDR: 千安培</translatorcomment>
        <translation>千安培</translation>
    </message>
    <message>
        <source>hectoampere</source>
        <translatorcomment>CLDR: 百安培</translatorcomment>
        <translation>百安培</translation>
    </message>
    <message>
        <source>decaampere</source>
        <translatorcomment>CLDR: 十安培</translatorcomment>
        <translation>十安培</translation>
    </message>
    <message>
        <source>deciampere</source>
        <translatorcomment>CLDR: 分安培</translatorcomment>
        <translation>分安培</translation>
    </message>
    <message>
        <source>centiampere</source>
        <translatorcomment>CLDR: 厘安培</translatorcomment>
        <translation>厘安培</translation>
    </message>
    <message>
        <source>milliampere</source>
        <translatorcomment>CLDR: 毫安</translatorcomment>
        <translation>毫安</translation>
    </message>
    <message>
        <source>microampere</source>
        <translatorcomment>CLDR: 微安培</translatorcomment>
        <translation>微安培</translation>
    </message>
    <message>
        <source>nanoampere</source>
        <translatorcomment>CLDR: 纳安培</translatorcomment>
        <translation>纳安培</translation>
    </message>
    <message>
        <source>picoampere</source>
        <translatorcomment>CLDR: 皮安培</translatorcomment>
        <translation>皮安培</translation>
    </message>
    <message>
        <source>femtoampere</source>
        <translatorcomment>CLDR: 飞安培</translatorcomment>
        <translation>飞安培</translation>
    </message>
    <message>
        <source>attoampere</source>
        <translatorcomment>CLDR: 阿安培</translatorcomment>
        <translation>阿安培</translation>
    </message>
    <message>
        <source>zeptoampere</source>
        <translatorcomment>CLDR: 仄安培</translatorcomment>
        <translation>仄安培</translation>
    </message>
    <message>
        <source>yoctoampere</source>
        <translatorcomment>CLDR: 幺安培</translatorcomment>
        <translation>幺安培</translation>
    </message>
    <message>
        <source>coulomb</source>
        <translation>库仑</translation>
    </message>
    <message>
        <source>ampere hour</source>
        <translatorcomment>CLDR: 安培⋅小时</translatorcomment>
        <translation>安培⋅小时</translation>
    </message>
    <message>
        <source>milliampere hour</source>
        <translatorcomment>CLDR: 毫安⋅小时</translatorcomment>
        <translation>毫安⋅小时</translation>
    </message>
    <message>
        <source>faraday</source>
        <translation>法拉第</translation>
    </message>
    <message>
        <source>farad</source>
        <translation>法拉</translation>
    </message>
    <message>
        <source>yottafarad</source>
        <translation>尧法拉</translation>
    </message>
    <message>
        <source>zettafarad</source>
        <translation>泽法拉</translation>
    </message>
    <message>
        <source>exafarad</source>
        <translation>艾法拉</translation>
    </message>
    <message>
        <source>petafarad</source>
        <translation>拍法拉</translation>
    </message>
    <message>
        <source>terafarad</source>
        <translation>太法拉</translation>
    </message>
    <message>
        <source>gigafarad</source>
        <translation>吉法拉</translation>
    </message>
    <message>
        <source>megafarad</source>
        <translation>兆法拉</translation>
    </message>
    <message>
        <source>kilofarad</source>
        <translation>千法拉</translation>
    </message>
    <message>
        <source>hectofarad</source>
        <translation>百法拉</translation>
    </message>
    <message>
        <source>decafarad</source>
        <translation>十法拉</translation>
    </message>
    <message>
        <source>decifarad</source>
        <translation>分法拉</translation>
    </message>
    <message>
        <source>centifarad</source>
        <translation>厘法拉</translation>
    </message>
    <message>
        <source>millifarad</source>
        <translation>毫法拉</translation>
    </message>
    <message>
        <source>microfarad</source>
        <translation>微法拉</translation>
    </message>
    <message>
        <source>nanofarad</source>
        <translation>纳法拉</translation>
    </message>
    <message>
        <source>picofarad</source>
        <translation>皮法拉</translation>
    </message>
    <message>
        <source>femtofarad</source>
        <translation>飞法拉</translation>
    </message>
    <message>
        <source>attofarad</source>
        <translation>阿法拉</translation>
    </message>
    <message>
        <source>zeptofarad</source>
        <translation>仄法拉</translation>
    </message>
    <message>
        <source>yoctofarad</source>
        <translation>幺法拉</translation>
    </message>
    <message>
        <source>kilopicofarad</source>
        <translation>千皮法</translation>
    </message>
    <message>
        <source>baud</source>
        <translation>波特</translation>
    </message>
    <message>
        <source>bit per second</source>
        <translatorcomment>CLDR: 比特/秒</translatorcomment>
        <translation>比特/秒</translation>
    </message>
    <message>
        <source>byte per second</source>
        <translatorcomment>CLDR: 字节/秒</translatorcomment>
        <translation>字节/秒</translation>
    </message>
    <message>
        <source>kilobaud</source>
        <translation>千波特</translation>
    </message>
    <message>
        <source>kilobit per second</source>
        <translatorcomment>CLDR: 千比特/秒</translatorcomment>
        <translation>千比特/秒</translation>
    </message>
    <message>
        <source>kilobyte per second</source>
        <translatorcomment>CLDR: 千字节/秒</translatorcomment>
        <translation>千字节/秒</translation>
    </message>
    <message>
        <source>megabaud</source>
        <translation>兆波特</translation>
    </message>
    <message>
        <source>megabit per second</source>
        <translatorcomment>CLDR: 兆比特/秒</translatorcomment>
        <translation>兆比特/秒</translation>
    </message>
    <message>
        <source>megabyte per second</source>
        <translatorcomment>CLDR: 兆字节/秒</translatorcomment>
        <translation>兆字节/秒</translation>
    </message>
    <message>
        <source>kilogram per cubic meter</source>
        <translatorcomment>CLDR: 每立方米千克</translatorcomment>
        <translation>每立方米千克</translation>
    </message>
    <message>
        <source>kilogram per liter</source>
        <translatorcomment>CLDR: 每升千克</translatorcomment>
        <translation>每升千克</translation>
    </message>
    <message>
        <source>gram per liter</source>
        <translatorcomment>CLDR: 每升克</translatorcomment>
        <translation>每升克</translation>
    </message>
    <message>
        <source>microgram per milliliter</source>
        <translatorcomment>CLDR: 每毫升微克</translatorcomment>
        <translation>每毫升微克</translation>
    </message>
    <message>
        <source>milligram per milliliter</source>
        <translatorcomment>CLDR: 每毫升毫克</translatorcomment>
        <translation>每毫升毫克</translation>
    </message>
    <message>
        <source>pound per gallon</source>
        <translatorcomment>CLDR: 每加仑磅</translatorcomment>
        <translation>每加仑磅</translation>
    </message>
    <message>
        <source>ounce per gallon</source>
        <translatorcomment>CLDR: 每加仑盎司</translatorcomment>
        <translation>每加仑盎司</translation>
    </message>
    <message>
        <source>pound per cubic foot</source>
        <translatorcomment>CLDR: 每立方英尺磅</translatorcomment>
        <translation>每立方英尺磅</translation>
    </message>
    <message>
        <source>pound per cubic inch</source>
        <translatorcomment>CLDR: 每立方英寸磅</translatorcomment>
        <translation>每立方英寸磅</translation>
    </message>
    <message>
        <source>gram per cubic centimeter</source>
        <translatorcomment>CLDR: 每立方厘米克</translatorcomment>
        <translation>每立方厘米克</translation>
    </message>
    <message>
        <source>newton square second per quartic millimeter</source>
        <translation>牛顿二次方秒每四次方毫米</translation>
    </message>
    <message>
        <source>newton per cubic meter</source>
        <translatorcomment>CLDR: 每立方米牛顿</translatorcomment>
        <translation>每立方米牛顿</translation>
    </message>
    <message>
        <source>kilonewton per cubic meter</source>
        <translatorcomment>CLDR: 每立方米千牛顿</translatorcomment>
        <translation>每立方米千牛顿</translation>
    </message>
    <message>
        <source>pound force per cubic foot</source>
        <translation>每立方英尺磅力</translation>
    </message>
    <message>
        <source>kip per cubic inch</source>
        <translation>每立方英寸千磅力</translation>
    </message>
    <message>
        <source>kip per cubic foot</source>
        <translation>每立方英尺千磅力</translation>
    </message>
    <message>
        <source>joule</source>
        <translatorcomment>CLDR: 焦耳</translatorcomment>
        <translation>焦耳</translation>
    </message>
    <message>
        <source>calorie</source>
        <translatorcomment>CLDR: 卡路里</translatorcomment>
        <translation>卡路里</translation>
    </message>
    <message>
        <source>kilocalorie</source>
        <translatorcomment>CLDR: 千卡</translatorcomment>
        <translation>千卡</translation>
    </message>
    <message>
        <source>British thermal unit (thermochemical)</source>
        <translation>英热单位 (热化学)</translation>
    </message>
    <message>
        <source>British thermal unit (ISO)</source>
        <translation>英热单位 (ISO)</translation>
    </message>
    <message>
        <source>British thermal unit (63 degree F)</source>
        <translation>英热单位 (63 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (60 degree F)</source>
        <translation>英热单位 (60 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (59 degree F)</source>
        <translation>英热单位 (59 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (International Table)</source>
        <translation>英热单位 (国际蒸汽表)</translation>
    </message>
    <message>
        <source>British thermal unit (mean)</source>
        <translation>英热单位 (平均)</translation>
    </message>
    <message>
        <source>British thermal unit (39 degree F)</source>
        <translation>英热单位 (39 °F)</translation>
    </message>
    <message>
        <source>kiloelectronvolt</source>
        <translatorcomment>CLDR: 千电子伏特</translatorcomment>
        <translation>千电子伏特</translation>
    </message>
    <message>
        <source>megaelectronvolt</source>
        <translatorcomment>CLDR: 兆电子伏特</translatorcomment>
        <translation>兆电子伏特</translation>
    </message>
    <message>
        <source>electronvolt</source>
        <translatorcomment>CLDR: 电子伏特</translatorcomment>
        <translation>电子伏特</translation>
    </message>
    <message>
        <source>erg</source>
        <translation>尔格</translation>
    </message>
    <message>
        <source>kilowatt hour</source>
        <translatorcomment>CLDR: 千瓦时</translatorcomment>
        <translation>千瓦时</translation>
    </message>
    <message>
        <source>kilowatt minute</source>
        <translatorcomment>CLDR: 千瓦⋅分钟</translatorcomment>
        <translation>千瓦⋅分钟</translation>
    </message>
    <message>
        <source>kilowatt second</source>
        <translatorcomment>CLDR: 千瓦⋅秒钟</translatorcomment>
        <translation>千瓦⋅秒钟</translation>
    </message>
    <message>
        <source>therm (U.S.)</source>
        <translation>撒姆 (美制)</translation>
    </message>
    <message>
        <source>newton meter</source>
        <translatorcomment>CLDR: 牛顿米</translatorcomment>
        <translation>牛顿米</translation>
    </message>
    <message>
        <source>decanewton meter</source>
        <translatorcomment>CLDR: 十牛顿米</translatorcomment>
        <translation>十牛顿米</translation>
    </message>
    <message>
        <source>kilonewton meter</source>
        <translatorcomment>CLDR: 千牛顿米</translatorcomment>
        <translation>千牛顿米</translation>
    </message>
    <message>
        <source>meganewton meter</source>
        <translatorcomment>CLDR: 兆牛顿米</translatorcomment>
        <translation>兆牛顿米</translation>
    </message>
    <message>
        <source>kilogram force meter</source>
        <translation>千克力米</translation>
    </message>
    <message>
        <source>kilogram force foot</source>
        <translation>千克力英尺</translation>
    </message>
    <message>
        <source>ton force foot</source>
        <translation>吨力英尺</translation>
    </message>
    <message>
        <source>ton force meter</source>
        <translation>吨力米</translation>
    </message>
    <message>
        <source>foot kilopound</source>
        <translation>英尺千磅</translation>
    </message>
    <message>
        <source>foot pound force</source>
        <translation>英尺磅力</translation>
    </message>
    <message>
        <source>calorie (20 degree C)</source>
        <translation>卡路里 (20 °C)</translation>
    </message>
    <message>
        <source>calorie (thermochemical)</source>
        <translation>卡路里 (热化学)</translation>
    </message>
    <message>
        <source>calorie (15 degree C)</source>
        <translation>卡路里 (15 °C)</translation>
    </message>
    <message>
        <source>calorie (mean)</source>
        <translation>卡路里 (平均)</translation>
    </message>
    <message>
        <source>calorie (3.98 degree C)</source>
        <translation>卡路里 (3.98 °C)</translation>
    </message>
    <message>
        <source>Therm (EC)</source>
        <translation>撒姆 (欧共体)</translation>
    </message>
    <message>
        <source>cubic meter per second</source>
        <translatorcomment>CLDR: 立方米/秒</translatorcomment>
        <translation>立方米/秒</translation>
    </message>
    <message>
        <source>liter per second</source>
        <translatorcomment>CLDR: 升/秒</translatorcomment>
        <translation>升/秒</translation>
    </message>
    <message>
        <source>liter per minute</source>
        <translatorcomment>CLDR: 每分钟升</translatorcomment>
        <translation>每分钟升</translation>
    </message>
    <message>
        <source>liter per hour</source>
        <translatorcomment>CLDR: 每小时升</translatorcomment>
        <translation>每小时升</translation>
    </message>
    <message>
        <source>gallon per second</source>
        <translatorcomment>CLDR: 加仑/秒</translatorcomment>
        <translation>加仑/秒</translation>
    </message>
    <message>
        <source>gallon per minute</source>
        <translatorcomment>CLDR: 每分钟加仑</translatorcomment>
        <translation>每分钟加仑</translation>
    </message>
    <message>
        <source>gallon per hour</source>
        <translatorcomment>CLDR: 每小时加仑</translatorcomment>
        <translation>每小时加仑</translation>
    </message>
    <message>
        <source>gallon per day</source>
        <translatorcomment>CLDR: 每天加仑</translatorcomment>
        <translation>每天加仑</translation>
    </message>
    <message>
        <source>milliliter per minute</source>
        <translatorcomment>CLDR: 每分钟毫升</translatorcomment>
        <translation>每分钟毫升</translation>
    </message>
    <message>
        <source>cubic centimeter per minute</source>
        <translatorcomment>CLDR: 每分钟立方厘米</translatorcomment>
        <translation>每分钟立方厘米</translation>
    </message>
    <message>
        <source>cubic foot per hour</source>
        <translatorcomment>CLDR: 每小时立方英尺</translatorcomment>
        <translation>每小时立方英尺</translation>
    </message>
    <message>
        <source>cubic foot per minute</source>
        <translatorcomment>CLDR: 每分钟立方英尺</translatorcomment>
        <translation>每分钟立方英尺</translation>
    </message>
    <message>
        <source>cubic foot per second</source>
        <translatorcomment>CLDR: 立方英尺/秒</translatorcomment>
        <translation>立方英尺/秒</translation>
    </message>
    <message>
        <source>cubic inch per minute</source>
        <translatorcomment>CLDR: 每分钟立方英寸</translatorcomment>
        <translation>每分钟立方英寸</translation>
    </message>
    <message>
        <source>cubic meter per hour</source>
        <translatorcomment>CLDR: 每小时立方米</translatorcomment>
        <translation>每小时立方米</translation>
    </message>
    <message>
        <source>cubic meter per minute</source>
        <translatorcomment>CLDR: 每分钟立方米</translatorcomment>
        <translation>每分钟立方米</translation>
    </message>
    <message>
        <source>cubic centimeter per second</source>
        <translatorcomment>CLDR: 立方厘米/秒</translatorcomment>
        <translation>立方厘米/秒</translation>
    </message>
    <message>
        <source>cubic centimeter per hour</source>
        <translatorcomment>CLDR: 每小时立方厘米</translatorcomment>
        <translation>每小时立方厘米</translation>
    </message>
    <message>
        <source>US gallon per hour</source>
        <translation>每小时美制加仑</translation>
    </message>
    <message>
        <source>US gallon per second</source>
        <translation>每秒美制加仑</translation>
    </message>
    <message>
        <source>Imp gallon per day</source>
        <translation>每天英制加仑</translation>
    </message>
    <message>
        <source>Imp gallon per hour</source>
        <translation>每小时英制加仑</translation>
    </message>
    <message>
        <source>Imp gallon per minute</source>
        <translation>每分钟英制加仑</translation>
    </message>
    <message>
        <source>Imp gallon per second</source>
        <translation>每秒英制加仑</translation>
    </message>
    <message>
        <source>Imp million gallon per day</source>
        <translation>每天百万英制加仑</translation>
    </message>
    <message>
        <source>liter per day</source>
        <translatorcomment>CLDR: 每天升</translatorcomment>
        <translation>每天升</translation>
    </message>
    <message>
        <source>million liter per day</source>
        <translation>每天百万升</translation>
    </message>
    <message>
        <source>US gallon per day</source>
        <translation>每天美制加仑</translation>
    </message>
    <message>
        <source>US million gallon per day</source>
        <translation>每天百万美制加仑</translation>
    </message>
    <message>
        <source>cubic foot per day</source>
        <translatorcomment>CLDR: 每天立方英尺</translatorcomment>
        <translation>每天立方英尺</translation>
    </message>
    <message>
        <source>cubic meter per day</source>
        <translatorcomment>CLDR: 每天立方米</translatorcomment>
        <translation>每天立方米</translation>
    </message>
    <message>
        <source>cubic yard per minute</source>
        <translatorcomment>CLDR: 每分钟立方码</translatorcomment>
        <translation>每分钟立方码</translation>
    </message>
    <message>
        <source>acre foot per day</source>
        <translatorcomment>CLDR: 每天英亩英尺</translatorcomment>
        <translation>每天英亩英尺</translation>
    </message>
    <message>
        <source>acre foot per hour</source>
        <translatorcomment>CLDR: 每小时英亩英尺</translatorcomment>
        <translation>每小时英亩英尺</translation>
    </message>
    <message>
        <source>acre foot per minute</source>
        <translatorcomment>CLDR: 每分钟英亩英尺</translatorcomment>
        <translation>每分钟英亩英尺</translation>
    </message>
    <message>
        <source>acre inch per hour</source>
        <translation>每小时英亩英寸</translation>
    </message>
    <message>
        <source>acre inch per minute</source>
        <translation>每分钟英亩英寸</translation>
    </message>
    <message>
        <source>cubic survey foot per second</source>
        <translation>每秒立方测量英尺</translation>
    </message>
    <message>
        <source>kilogram per second</source>
        <translatorcomment>CLDR: 千克/秒</translatorcomment>
        <translation>千克/秒</translation>
    </message>
    <message>
        <source>kilogram per minute</source>
        <translatorcomment>CLDR: 每分钟千克</translatorcomment>
        <translation>每分钟千克</translation>
    </message>
    <message>
        <source>kilogram per hour</source>
        <translatorcomment>CLDR: 每小时千克</translatorcomment>
        <translation>每小时千克</translation>
    </message>
    <message>
        <source>gram per second</source>
        <translatorcomment>CLDR: 克/秒</translatorcomment>
        <translation>克/秒</translation>
    </message>
    <message>
        <source>gram per minute</source>
        <translatorcomment>CLDR: 每分钟克</translatorcomment>
        <translation>每分钟克</translation>
    </message>
    <message>
        <source>gram per hour</source>
        <translatorcomment>CLDR: 每小时克</translatorcomment>
        <translation>每小时克</translation>
    </message>
    <message>
        <source>pound per second</source>
        <translatorcomment>CLDR: 磅/秒</translatorcomment>
        <translation>磅/秒</translation>
    </message>
    <message>
        <source>pound per minute</source>
        <translatorcomment>CLDR: 每分钟磅</translatorcomment>
        <translation>每分钟磅</translation>
    </message>
    <message>
        <source>pound per hour</source>
        <translatorcomment>CLDR: 每小时磅</translatorcomment>
        <translation>每小时磅</translation>
    </message>
    <message>
        <source>pint per stroke</source>
        <translation>每冲程品脱</translation>
    </message>
    <message>
        <source>quart per stroke</source>
        <translation>每冲程夸脱</translation>
    </message>
    <message>
        <source>newton</source>
        <translatorcomment>CLDR: 牛顿</translatorcomment>
        <translation>牛顿</translation>
    </message>
    <message>
        <source>yottanewton</source>
        <translatorcomment>CLDR: 尧牛顿</translatorcomment>
        <translation>尧牛顿</translation>
    </message>
    <message>
        <source>zettanewton</source>
        <translatorcomment>CLDR: 泽牛顿</translatorcomment>
        <translation>泽牛顿</translation>
    </message>
    <message>
        <source>exanewton</source>
        <translatorcomment>CLDR: 艾牛顿</translatorcomment>
        <translation>艾牛顿</translation>
    </message>
    <message>
        <source>petanewton</source>
        <translatorcomment>CLDR: 拍牛顿</translatorcomment>
        <translation>拍牛顿</translation>
    </message>
    <message>
        <source>teranewton</source>
        <translatorcomment>CLDR: 太牛顿</translatorcomment>
        <translation>太牛顿</translation>
    </message>
    <message>
        <source>giganewton</source>
        <translatorcomment>CLDR: 吉牛顿</translatorcomment>
        <translation>吉牛顿</translation>
    </message>
    <message>
        <source>meganewton</source>
        <translatorcomment>CLDR: 兆牛顿</translatorcomment>
        <translation>兆牛顿</translation>
    </message>
    <message>
        <source>kilonewton</source>
        <translatorcomment>CLDR: 千牛顿</translatorcomment>
        <translation>千牛顿</translation>
    </message>
    <message>
        <source>hectonewton</source>
        <translatorcomment>CLDR: 百牛顿</translatorcomment>
        <translation>百牛顿</translation>
    </message>
    <message>
        <source>decanewton</source>
        <translatorcomment>CLDR: 十牛顿</translatorcomment>
        <translation>十牛顿</translation>
    </message>
    <message>
        <source>decinewton</source>
        <translatorcomment>CLDR: 分牛顿</translatorcomment>
        <translation>分牛顿</translation>
    </message>
    <message>
        <source>centinewton</source>
        <translatorcomment>CLDR: 厘牛顿</translatorcomment>
        <translation>厘牛顿</translation>
    </message>
    <message>
        <source>millinewton</source>
        <translatorcomment>CLDR: 毫牛顿</translatorcomment>
        <translation>毫牛顿</translation>
    </message>
    <message>
        <source>micronewton</source>
        <translatorcomment>CLDR: 微牛顿</translatorcomment>
        <translation>微牛顿</translation>
    </message>
    <message>
        <source>nanonewton</source>
        <translatorcomment>CLDR: 纳牛顿</translatorcomment>
        <translation>纳牛顿</translation>
    </message>
    <message>
        <source>piconewton</source>
        <translatorcomment>CLDR: 皮牛顿</translatorcomment>
        <translation>皮牛顿</translation>
    </message>
    <message>
        <source>femtonewton</source>
        <translatorcomment>CLDR: 飞牛顿</translatorcomment>
        <translation>飞牛顿</translation>
    </message>
    <message>
        <source>attonewton</source>
        <translatorcomment>CLDR: 阿牛顿</translatorcomment>
        <translation>阿牛顿</translation>
    </message>
    <message>
        <source>zeptonewton</source>
        <translatorcomment>CLDR: 仄牛顿</translatorcomment>
        <translation>仄牛顿</translation>
    </message>
    <message>
        <source>yoctonewton</source>
        <translatorcomment>CLDR: 幺牛顿</translatorcomment>
        <translation>幺牛顿</translation>
    </message>
    <message>
        <source>kilopound</source>
        <translation>千磅</translation>
    </message>
    <message>
        <source>kilogram-force</source>
        <translation>千克力</translation>
    </message>
    <message>
        <source>pound force</source>
        <translatorcomment>CLDR: 磅力</translatorcomment>
        <translation>磅力</translation>
    </message>
    <message>
        <source>kip</source>
        <translation>千磅力</translation>
    </message>
    <message>
        <source>ton force</source>
        <translation>吨力</translation>
    </message>
    <message>
        <source>dyne</source>
        <translation>达因</translation>
    </message>
    <message>
        <source>lbforce</source>
        <translation>lbf (磅力)</translation>
    </message>
    <message>
        <source>ounce force</source>
        <translation>盎司力</translation>
    </message>
    <message>
        <source>newton per meter</source>
        <translatorcomment>CLDR: 每米牛顿</translatorcomment>
        <translation>每米牛顿</translation>
    </message>
    <message>
        <source>kilopound per foot</source>
        <translation>每英尺千磅</translation>
    </message>
    <message>
        <source>kilogram force per meter</source>
        <translation>每米千克力</translation>
    </message>
    <message>
        <source>ton force per meter</source>
        <translation>每米吨力</translation>
    </message>
    <message>
        <source>pound-force per foot</source>
        <translation>每英尺磅力</translation>
    </message>
    <message>
        <source>decanewton per meter</source>
        <translatorcomment>CLDR: 每米十牛顿</translatorcomment>
        <translation>每米十牛顿</translation>
    </message>
    <message>
        <source>kilonewton per meter</source>
        <translatorcomment>CLDR: 每米千牛顿</translatorcomment>
        <translation>每米千牛顿</translation>
    </message>
    <message>
        <source>meganewton per meter</source>
        <translatorcomment>CLDR: 每米兆牛顿</translatorcomment>
        <translation>每米兆牛顿</translation>
    </message>
    <message>
        <source>kip per foot</source>
        <translation>每英尺千磅力</translation>
    </message>
    <message>
        <source>kip per inch</source>
        <translation>每英寸千磅力</translation>
    </message>
    <message>
        <source>hertz</source>
        <translatorcomment>CLDR: 赫兹</translatorcomment>
        <translation>赫兹</translation>
    </message>
    <message>
        <source>kilohertz</source>
        <translatorcomment>CLDR: 千赫</translatorcomment>
        <translation>千赫</translation>
    </message>
    <message>
        <source>megahertz</source>
        <translatorcomment>CLDR: 兆赫</translatorcomment>
        <translation>兆赫</translation>
    </message>
    <message>
        <source>gigahertz</source>
        <translatorcomment>CLDR: 吉赫</translatorcomment>
        <translation>吉赫</translation>
    </message>
    <message>
        <source>terahertz</source>
        <translatorcomment>CLDR: 太赫兹</translatorcomment>
        <translation>太赫兹</translation>
    </message>
    <message>
        <source>cycle per second</source>
        <translation>每秒周</translation>
    </message>
    <message>
        <source>revolution per minute</source>
        <translatorcomment>CLDR: 每分钟转</translatorcomment>
        <translation>每分钟转</translation>
    </message>
    <message>
        <source>flash per second</source>
        <translation>每秒闪光次数</translation>
    </message>
    <message>
        <source>flash per minute</source>
        <translation>每分钟闪光次数</translation>
    </message>
    <message>
        <source>henry</source>
        <translation>亨利</translation>
    </message>
    <message>
        <source>nanohenry</source>
        <translation>纳亨</translation>
    </message>
    <message>
        <source>microhenry</source>
        <translation>微亨</translation>
    </message>
    <message>
        <source>millihenry</source>
        <translation>毫亨</translation>
    </message>
    <message>
        <source>gauss</source>
        <translation>高斯</translation>
    </message>
    <message>
        <source>milligauss</source>
        <translation>毫高斯</translation>
    </message>
    <message>
        <source>tesla</source>
        <translation>特斯拉</translation>
    </message>
    <message>
        <source>gamma</source>
        <translation>伽马</translation>
    </message>
    <message>
        <source>weber</source>
        <translation>韦伯</translation>
    </message>
    <message>
        <source>maxwell</source>
        <translation>麦克斯韦</translation>
    </message>
    <message>
        <source>watt</source>
        <translatorcomment>CLDR: 瓦特</translatorcomment>
        <translation>瓦特</translation>
    </message>
    <message>
        <source>horsepower (metric)</source>
        <translation>公制马力</translation>
    </message>
    <message>
        <source>horsepower (European electrical)</source>
        <translation>马力 (欧洲电气)</translation>
    </message>
    <message>
        <source>horsepower (Imperial mechanical)</source>
        <translation>英制马力 (机械)</translation>
    </message>
    <message>
        <source>horsepower (Imperial electrical)</source>
        <translation>英制马力 (电气)</translation>
    </message>
    <message>
        <source>kilocalorie per hour</source>
        <translatorcomment>CLDR: 每小时千卡</translatorcomment>
        <translation>每小时千卡</translation>
    </message>
    <message>
        <source>kilowatt</source>
        <translatorcomment>CLDR: 千瓦</translatorcomment>
        <translation>千瓦</translation>
    </message>
    <message>
        <source>megawatt</source>
        <translatorcomment>CLDR: 兆瓦</translatorcomment>
        <translation>兆瓦</translation>
    </message>
    <message>
        <source>microwatt</source>
        <translatorcomment>CLDR: 微瓦特</translatorcomment>
        <translation>微瓦特</translation>
    </message>
    <message>
        <source>volt ampere</source>
        <translatorcomment>CLDR: 伏特⋅安培</translatorcomment>
        <translation>伏特⋅安培</translation>
    </message>
    <message>
        <source>millivolt ampere</source>
        <translatorcomment>CLDR: 毫伏特⋅安培</translatorcomment>
        <translation>毫伏特⋅安培</translation>
    </message>
    <message>
        <source>kilovolt ampere</source>
        <translatorcomment>CLDR: 千伏特⋅安培</translatorcomment>
        <translation>千伏特⋅安培</translation>
    </message>
    <message>
        <source>megavolt ampere</source>
        <translatorcomment>CLDR: 兆伏特⋅安培</translatorcomment>
        <translation>兆伏特⋅安培</translation>
    </message>
    <message>
        <source>milliwatt</source>
        <translatorcomment>CLDR: 毫瓦</translatorcomment>
        <translation>毫瓦</translation>
    </message>
    <message>
        <source>kilogram force meter per second</source>
        <translation>每秒千克力米</translation>
    </message>
    <message>
        <source>foot pound-force per second</source>
        <translation>每秒英尺磅力</translation>
    </message>
    <message>
        <source>calorie per second</source>
        <translatorcomment>CLDR: 卡路里/秒</translatorcomment>
        <translation>卡路里/秒</translation>
    </message>
    <message>
        <source>kilocalorie per second</source>
        <translatorcomment>CLDR: 千卡/秒</translatorcomment>
        <translation>千卡/秒</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per second</source>
        <translation>每秒英热单位 (国际蒸汽表)</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per hour</source>
        <translation>每小时英热单位 (国际蒸汽表)</translation>
    </message>
    <message>
        <source>million British thermal unit (International Table) per hour</source>
        <translation>每小时百万英热单位 (国际蒸汽表)</translation>
    </message>
    <message>
        <source>thousand British thermal unit (International Table) per hour</source>
        <translation>每小时千英热单位 (国际蒸汽表)</translation>
    </message>
    <message>
        <source>ton of refrigeration</source>
        <translation>冷吨</translation>
    </message>
    <message>
        <source>watt per cubic meter</source>
        <translatorcomment>CLDR: 每立方米瓦特</translatorcomment>
        <translation>每立方米瓦特</translation>
    </message>
    <message>
        <source>watt per cubic foot</source>
        <translatorcomment>CLDR: 每立方英尺瓦特</translatorcomment>
        <translation>每立方英尺瓦特</translation>
    </message>
    <message>
        <source>British thermal unit per hour cubic foot</source>
        <translation>每小时每立方英尺英热单位</translation>
    </message>
    <message>
        <source>watt per kilogram</source>
        <translatorcomment>CLDR: 每千克瓦特</translatorcomment>
        <translation>每千克瓦特</translation>
    </message>
    <message>
        <source>watt per square meter</source>
        <translatorcomment>CLDR: 每平方米瓦特</translatorcomment>
        <translation>每平方米瓦特</translation>
    </message>
    <message>
        <source>kilowatt per square meter</source>
        <translatorcomment>CLDR: 每平方米千瓦</translatorcomment>
        <translation>每平方米千瓦</translation>
    </message>
    <message>
        <source>kilowatt per square foot</source>
        <translatorcomment>CLDR: 每平方英尺千瓦</translatorcomment>
        <translation>每平方英尺千瓦</translation>
    </message>
    <message>
        <source>watt per square foot</source>
        <translatorcomment>CLDR: 每平方英尺瓦特</translatorcomment>
        <translation>每平方英尺瓦特</translation>
    </message>
    <message>
        <source>British thermal unit per hour square foot</source>
        <translation>每小时每平方英尺英热单位</translation>
    </message>
    <message>
        <source>bar</source>
        <translatorcomment>CLDR: 巴</translatorcomment>
        <translation>巴</translation>
    </message>
    <message>
        <source>bar absolute</source>
        <translation>巴 (绝对压力)</translation>
    </message>
    <message>
        <source>bar gauge</source>
        <translation>巴 (表压)</translation>
    </message>
    <message>
        <source>inch of mercury</source>
        <translatorcomment>CLDR: 英寸汞柱</translatorcomment>
        <translation>英寸汞柱</translation>
    </message>
    <message>
        <source>inch of water</source>
        <translation>英寸水柱</translation>
    </message>
    <message>
        <source>kilobar</source>
        <translatorcomment>CLDR: 千巴</translatorcomment>
        <translation>千巴</translation>
    </message>
    <message>
        <source>kilogram per square centimeter</source>
        <translatorcomment>CLDR: 每平方厘米千克</translatorcomment>
        <translation>每平方厘米千克</translation>
    </message>
    <message>
        <source>kilopascal</source>
        <translatorcomment>CLDR: 千帕斯卡</translatorcomment>
        <translation>千帕斯卡</translation>
    </message>
    <message>
        <source>kilopound per square inch</source>
        <translatorcomment>CLDR: 每平方英寸千磅</translatorcomment>
        <translation>每平方英寸千磅</translation>
    </message>
    <message>
        <source>mega pascal</source>
        <translatorcomment>CLDR: 兆帕斯卡</translatorcomment>
        <translation>兆帕斯卡</translation>
    </message>
    <message>
        <source>millibar</source>
        <translatorcomment>CLDR: 毫巴</translatorcomment>
        <translation>毫巴</translation>
    </message>
    <message>
        <source>millimeter of mercury</source>
        <translatorcomment>CLDR: 毫米汞柱</translatorcomment>
        <translation>毫米汞柱</translation>
    </message>
    <message>
        <source>milli pascal</source>
        <translatorcomment>CLDR: 毫帕斯卡</translatorcomment>
        <translation>毫帕斯卡</translation>
    </message>
    <message>
        <source>pascal</source>
        <translatorcomment>CLDR: 帕斯卡</translatorcomment>
        <translation>帕斯卡</translation>
    </message>
    <message>
        <source>pound per square inch (atmosphere)</source>
        <translation>每平方英寸磅 (绝对压力)</translation>
    </message>
    <message>
        <source>pound per square inch (gauge)</source>
        <translation>每平方英寸磅 (表压)</translation>
    </message>
    <message>
        <source>pound per square foot</source>
        <translatorcomment>CLDR: 每平方英尺磅</translatorcomment>
        <translation>每平方英尺磅</translation>
    </message>
    <message>
        <source>pound per square inch</source>
        <translatorcomment>CLDR: 每平方英寸磅</translatorcomment>
        <translation>每平方英寸磅</translation>
    </message>
    <message>
        <source>atmosphere (standard)</source>
        <translation>标准大气压</translation>
    </message>
    <message>
        <source>atmosphere (metric)</source>
        <translation>工程大气压</translation>
    </message>
    <message>
        <source>torr</source>
        <translation>托</translation>
    </message>
    <message>
        <source>newton per square millimeter</source>
        <translation>每平方毫米牛顿</translation>
    </message>
    <message>
        <source>newton per square meter</source>
        <translatorcomment>CLDR: 每平方米牛顿</translatorcomment>
        <translation>每平方米牛顿</translation>
    </message>
    <message>
        <source>decanewton per square millimeter</source>
        <translation>每平方毫米十牛</translation>
    </message>
    <message>
        <source>decanewton per square meter</source>
        <translatorcomment>CLDR: 每平方米十牛顿</translatorcomment>
        <translation>每平方米十牛顿</translation>
    </message>
    <message>
        <source>kilonewton per square meter</source>
        <translatorcomment>CLDR: 每平方米千牛顿</translatorcomment>
        <translation>每平方米千牛顿</translation>
    </message>
    <message>
        <source>meganewton per square meter</source>
        <translatorcomment>CLDR: 每平方米兆牛顿</translatorcomment>
        <translation>每平方米兆牛顿</translation>
    </message>
    <message>
        <source>kilopound per square foot</source>
        <translatorcomment>CLDR: 每平方英尺千磅</translatorcomment>
        <translation>每平方英尺千磅</translation>
    </message>
    <message>
        <source>kilogram force per square millimeter</source>
        <translation>每平方毫米千克力</translation>
    </message>
    <message>
        <source>kilogram force per square centimeter</source>
        <translation>每平方厘米千克力</translation>
    </message>
    <message>
        <source>kilogram force per square meter</source>
        <translation>每平方米千克力</translation>
    </message>
    <message>
        <source>ton force per square centimeter</source>
        <translation>每平方厘米吨力</translation>
    </message>
    <message>
        <source>ton force per square meter</source>
        <translation>每平方米吨力</translation>
    </message>
    <message>
        <source>ton force per square foot</source>
        <translation>每平方英尺吨力</translation>
    </message>
    <message>
        <source>pound force per square inch</source>
        <translation>每平方英寸磅力</translation>
    </message>
    <message>
        <source>foot of water</source>
        <translation>英尺水柱</translation>
    </message>
    <message>
        <source>kip per square inch</source>
        <translation>每平方英寸千磅力</translation>
    </message>
    <message>
        <source>kip per square foot</source>
        <translation>每平方英尺千磅力</translation>
    </message>
    <message>
        <source>pound force per square foot</source>
        <translation>每平方英尺磅力</translation>
    </message>
    <message>
        <source>gigapascal</source>
        <translatorcomment>CLDR: 吉帕斯卡</translatorcomment>
        <translation>吉帕斯卡</translation>
    </message>
    <message>
        <source>dyne per square centimeter</source>
        <translation>每平方厘米达因</translation>
    </message>
    <message>
        <source>newton per square micrometer</source>
        <translation>每平方微米牛顿</translation>
    </message>
    <message>
        <source>meter per newton</source>
        <translatorcomment>CLDR: 每牛顿米</translatorcomment>
        <translation>每牛顿米</translation>
    </message>
    <message>
        <source>meter per kilonewton</source>
        <translatorcomment>CLDR: 每千牛顿米</translatorcomment>
        <translation>每千牛顿米</translation>
    </message>
    <message>
        <source>foot per kip</source>
        <translation>每千磅力英尺</translation>
    </message>
    <message>
        <source>square meter per newton</source>
        <translatorcomment>CLDR: 每牛顿平方米</translatorcomment>
        <translation>每牛顿平方米</translation>
    </message>
    <message>
        <source>square meter per kilonewton</source>
        <translatorcomment>CLDR: 每千牛顿平方米</translatorcomment>
        <translation>每千牛顿平方米</translation>
    </message>
    <message>
        <source>square foot per kip</source>
        <translation>每千磅力平方英尺</translation>
    </message>
    <message>
        <source>cubic meter per newton</source>
        <translatorcomment>CLDR: 每牛顿立方米</translatorcomment>
        <translation>每牛顿立方米</translation>
    </message>
    <message>
        <source>cubic meter per kilonewton</source>
        <translatorcomment>CLDR: 每千牛顿立方米</translatorcomment>
        <translation>每千牛顿立方米</translation>
    </message>
    <message>
        <source>cubic foot per kip</source>
        <translation>每千磅力立方英尺</translation>
    </message>
    <message>
        <source>newton-meter per meter</source>
        <translatorcomment>CLDR: 每米牛顿米</translatorcomment>
        <translation>每米牛顿米</translation>
    </message>
    <message>
        <source>decanewton-meter per meter</source>
        <translatorcomment>CLDR: 每米十牛顿米</translatorcomment>
        <translation>每米十牛顿米</translation>
    </message>
    <message>
        <source>kilonewton-meter per meter</source>
        <translatorcomment>CLDR: 每米千牛顿米</translatorcomment>
        <translation>每米千牛顿米</translation>
    </message>
    <message>
        <source>meganewton-meter per meter</source>
        <translatorcomment>CLDR: 每米兆牛顿米</translatorcomment>
        <translation>每米兆牛顿米</translation>
    </message>
    <message>
        <source>kip-foot per foot</source>
        <translation>每英尺千磅力英尺</translation>
    </message>
    <message>
        <source>kilogram force-meter per meter</source>
        <translation>每米千克力米</translation>
    </message>
    <message>
        <source>ton force-meter per meter</source>
        <translation>每米吨力米</translation>
    </message>
    <message>
        <source>pound-force foot per foot</source>
        <translatorcomment>CLDR: 每英尺磅英尺</translatorcomment>
        <translation>每英尺磅英尺</translation>
    </message>
    <message>
        <source>ohm</source>
        <translatorcomment>CLDR: 欧姆</translatorcomment>
        <translation>欧姆</translation>
    </message>
    <message>
        <source>kilohm</source>
        <translatorcomment>CLDR: 千欧姆</translatorcomment>
        <translation>千欧姆</translation>
    </message>
    <message>
        <source>gigaohm</source>
        <translatorcomment>CLDR: 吉欧姆</translatorcomment>
        <translation>吉欧姆</translation>
    </message>
    <message>
        <source>megohm</source>
        <translatorcomment>CLDR: 兆欧姆</translatorcomment>
        <translation>兆欧姆</translation>
    </message>
    <message>
        <source>microohm</source>
        <translatorcomment>CLDR: 微欧姆</translatorcomment>
        <translation>微欧姆</translation>
    </message>
    <message>
        <source>milliohm</source>
        <translatorcomment>CLDR: 毫欧姆</translatorcomment>
        <translation>毫欧姆</translation>
    </message>
    <message>
        <source>siemens</source>
        <translation>西门子</translation>
    </message>
    <message>
        <source>mho</source>
        <translation>姆欧</translation>
    </message>
    <message>
        <source>meter per second</source>
        <translatorcomment>CLDR: 每秒米</translatorcomment>
        <translation>每秒米</translation>
    </message>
    <message>
        <source>millimeter per second</source>
        <translatorcomment>CLDR: 毫米/秒</translatorcomment>
        <translation>毫米/秒</translation>
    </message>
    <message>
        <source>centimeter per second</source>
        <translatorcomment>CLDR: 厘米/秒</translatorcomment>
        <translation>厘米/秒</translation>
    </message>
    <message>
        <source>meter per minute</source>
        <translatorcomment>CLDR: 每分钟米</translatorcomment>
        <translation>每分钟米</translation>
    </message>
    <message>
        <source>inch per second</source>
        <translatorcomment>CLDR: 英寸/秒</translatorcomment>
        <translation>英寸/秒</translation>
    </message>
    <message>
        <source>foot per second</source>
        <translatorcomment>CLDR: 英尺/秒</translatorcomment>
        <translation>英尺/秒</translation>
    </message>
    <message>
        <source>inch per minute</source>
        <translatorcomment>CLDR: 每分钟英寸</translatorcomment>
        <translation>每分钟英寸</translation>
    </message>
    <message>
        <source>foot per minute</source>
        <translatorcomment>CLDR: 每分钟英尺</translatorcomment>
        <translation>每分钟英尺</translation>
    </message>
    <message>
        <source>kilometer per hour</source>
        <translatorcomment>CLDR: 每小时公里</translatorcomment>
        <translation>每小时公里</translation>
    </message>
    <message>
        <source>mile per hour</source>
        <translatorcomment>CLDR: 每小时英里</translatorcomment>
        <translation>每小时英里</translation>
    </message>
    <message>
        <source>centimeter per minute</source>
        <translatorcomment>CLDR: 每分钟厘米</translatorcomment>
        <translation>每分钟厘米</translation>
    </message>
    <message>
        <source>foot per hour</source>
        <translatorcomment>CLDR: 每小时英尺</translatorcomment>
        <translation>每小时英尺</translation>
    </message>
    <message>
        <source>inch per hour</source>
        <translatorcomment>CLDR: 每小时英寸</translatorcomment>
        <translation>每小时英寸</translation>
    </message>
    <message>
        <source>kilometer per minute</source>
        <translatorcomment>CLDR: 每分钟公里</translatorcomment>
        <translation>每分钟公里</translation>
    </message>
    <message>
        <source>kilometer per second</source>
        <translatorcomment>CLDR: 公里/秒</translatorcomment>
        <translation>公里/秒</translation>
    </message>
    <message>
        <source>knot</source>
        <translatorcomment>CLDR: 节</translatorcomment>
        <translation>节</translation>
    </message>
    <message>
        <source>knot (UK)</source>
        <translation>节 (英国)</translation>
    </message>
    <message>
        <source>meter per hour</source>
        <translatorcomment>CLDR: 每小时米</translatorcomment>
        <translation>每小时米</translation>
    </message>
    <message>
        <source>mile per minute</source>
        <translatorcomment>CLDR: 每分钟英里</translatorcomment>
        <translation>每分钟英里</translation>
    </message>
    <message>
        <source>mile per second</source>
        <translatorcomment>CLDR: 英里/秒</translatorcomment>
        <translation>英里/秒</translation>
    </message>
    <message>
        <source>survey mile per hour</source>
        <translation>每小时测量英里</translation>
    </message>
    <message>
        <source>survey foot per second</source>
        <translation>每秒测量英尺</translation>
    </message>
    <message>
        <source>byte</source>
        <translatorcomment>CLDR: 字节</translatorcomment>
        <translation>字节</translation>
    </message>
    <message>
        <source>bit</source>
        <translatorcomment>CLDR: 比特</translatorcomment>
        <translation>比特</translation>
    </message>
    <message>
        <source>kilobyte</source>
        <translatorcomment>CLDR: 千字节</translatorcomment>
        <translation>千字节</translation>
    </message>
    <message>
        <source>megabyte</source>
        <translatorcomment>CLDR: 兆字节</translatorcomment>
        <translation>兆字节</translation>
    </message>
    <message>
        <source>gigabyte</source>
        <translatorcomment>CLDR: 吉字节</translatorcomment>
        <translation>吉字节</translation>
    </message>
    <message>
        <source>terabyte</source>
        <translatorcomment>CLDR: 太字节</translatorcomment>
        <translation>太字节</translation>
    </message>
    <message>
        <source>kibibyte</source>
        <translation>千二进制字节</translation>
    </message>
    <message>
        <source>mebibyte</source>
        <translation>兆二进制字节</translation>
    </message>
    <message>
        <source>gibibyte</source>
        <translatorcomment>CLDR: Gib字节</translatorcomment>
        <translation>Gib字节</translation>
    </message>
    <message>
        <source>tebibyte</source>
        <translation>太二进制字节</translation>
    </message>
    <message>
        <source>kilobit</source>
        <translatorcomment>CLDR: 千比特</translatorcomment>
        <translation>千比特</translation>
    </message>
    <message>
        <source>megabit</source>
        <translatorcomment>CLDR: 兆比特</translatorcomment>
        <translation>兆比特</translation>
    </message>
    <message>
        <source>gigabit</source>
        <translatorcomment>CLDR: 吉比特</translatorcomment>
        <translation>吉比特</translation>
    </message>
    <message>
        <source>petabyte</source>
        <translatorcomment>CLDR: 拍字节</translatorcomment>
        <translation>拍字节</translation>
    </message>
    <message>
        <source>pebibyte</source>
        <translation>拍二进制字节</translation>
    </message>
    <message>
        <source>exabyte</source>
        <translatorcomment>CLDR: 艾字节</translatorcomment>
        <translation>艾字节</translation>
    </message>
    <message>
        <source>exbibyte</source>
        <translation>艾二进制字节</translation>
    </message>
    <message>
        <source>zettabyte</source>
        <translatorcomment>CLDR: 泽字节</translatorcomment>
        <translation>泽字节</translation>
    </message>
    <message>
        <source>zebibyte</source>
        <translation>泽二进制字节</translation>
    </message>
    <message>
        <source>yottabyte</source>
        <translatorcomment>CLDR: 尧字节</translatorcomment>
        <translation>尧字节</translation>
    </message>
    <message>
        <source>yobibyte</source>
        <translation>尧二进制字节</translation>
    </message>
    <message>
        <source>kelvin</source>
        <translatorcomment>CLDR: 开尔文</translatorcomment>
        <translation>开尔文</translation>
    </message>
    <message>
        <source>degree Celsius</source>
        <translatorcomment>CLDR: 摄氏度</translatorcomment>
        <translation>摄氏度</translation>
    </message>
    <message>
        <source>degree Fahrenheit</source>
        <translatorcomment>CLDR: 华氏度</translatorcomment>
        <translation>华氏度</translation>
    </message>
    <message>
        <source>degree Rankine</source>
        <translation>兰氏度</translation>
    </message>
    <message>
        <source>celsius per minute</source>
        <translatorcomment>CLDR: 每分钟摄氏度</translatorcomment>
        <translation>每分钟摄氏度</translation>
    </message>
    <message>
        <source>fahrenheit per minute</source>
        <translatorcomment>CLDR: 每分钟华氏度</translatorcomment>
        <translation>每分钟华氏度</translation>
    </message>
    <message>
        <source>second</source>
        <translatorcomment>CLDR: 秒钟</translatorcomment>
        <translation>秒钟</translation>
    </message>
    <message>
        <source>yottasecond</source>
        <translatorcomment>CLDR: 尧秒钟</translatorcomment>
        <translation>尧秒钟</translation>
    </message>
    <message>
        <source>zettasecond</source>
        <translatorcomment>CLDR: 泽秒钟</translatorcomment>
        <translation>泽秒钟</translation>
    </message>
    <message>
        <source>exasecond</source>
        <translatorcomment>CLDR: 艾秒钟</translatorcomment>
        <translation>艾秒钟</translation>
    </message>
    <message>
        <source>petasecond</source>
        <translatorcomment>CLDR: 拍秒钟</translatorcomment>
        <translation>拍秒钟</translation>
    </message>
    <message>
        <source>terasecond</source>
        <translatorcomment>CLDR: 太秒钟</translatorcomment>
        <translation>太秒钟</translation>
    </message>
    <message>
        <source>gigasecond</source>
        <translatorcomment>CLDR: 吉秒钟</translatorcomment>
        <translation>吉秒钟</translation>
    </message>
    <message>
        <source>megasecond</source>
        <translatorcomment>CLDR: 兆秒钟</translatorcomment>
        <translation>兆秒钟</translation>
    </message>
    <message>
        <source>kilosecond</source>
        <translatorcomment>CLDR: 千秒钟</translatorcomment>
        <translation>千秒钟</translation>
    </message>
    <message>
        <source>hectosecond</source>
        <translatorcomment>CLDR: 百秒钟</translatorcomment>
        <translation>百秒钟</translation>
    </message>
    <message>
        <source>decasecond</source>
        <translatorcomment>CLDR: 十秒钟</translatorcomment>
        <translation>十秒钟</translation>
    </message>
    <message>
        <source>decisecond</source>
        <translatorcomment>CLDR: 分秒钟</translatorcomment>
        <translation>分秒钟</translation>
    </message>
    <message>
        <source>centisecond</source>
        <translatorcomment>CLDR: 厘秒钟</translatorcomment>
        <translation>厘秒钟</translation>
    </message>
    <message>
        <source>millisecond</source>
        <translatorcomment>CLDR: 毫秒</translatorcomment>
        <translation>毫秒</translation>
    </message>
    <message>
        <source>microsecond</source>
        <translatorcomment>CLDR: 微秒</translatorcomment>
        <translation>微秒</translation>
    </message>
    <message>
        <source>nanosecond</source>
        <translatorcomment>CLDR: 纳秒</translatorcomment>
        <translation>纳秒</translation>
    </message>
    <message>
        <source>picosecond</source>
        <translatorcomment>CLDR: 皮秒钟</translatorcomment>
        <translation>皮秒钟</translation>
    </message>
    <message>
        <source>femtosecond</source>
        <translatorcomment>CLDR: 飞秒钟</translatorcomment>
        <translation>飞秒钟</translation>
    </message>
    <message>
        <source>attosecond</source>
        <translatorcomment>CLDR: 阿秒钟</translatorcomment>
        <translation>阿秒钟</translation>
    </message>
    <message>
        <source>zeptosecond</source>
        <translatorcomment>CLDR: 仄秒钟</translatorcomment>
        <translation>仄秒钟</translation>
    </message>
    <message>
        <source>yoctosecond</source>
        <translatorcomment>CLDR: 幺秒钟</translatorcomment>
        <translation>幺秒钟</translation>
    </message>
    <message>
        <source>minute</source>
        <translatorcomment>CLDR: 分钟</translatorcomment>
        <translation>分钟</translation>
    </message>
    <message>
        <source>hour</source>
        <translatorcomment>CLDR: 小时</translatorcomment>
        <translation>小时</translation>
    </message>
    <message>
        <source>day</source>
        <translatorcomment>CLDR: 天</translatorcomment>
        <translation>天</translation>
    </message>
    <message>
        <source>week</source>
        <translatorcomment>CLDR: 周</translatorcomment>
        <translation>周</translation>
    </message>
    <message>
        <source>fortnight</source>
        <translation>两星期</translation>
    </message>
    <message>
        <source>month</source>
        <translatorcomment>CLDR: 个月</translatorcomment>
        <translation>个月</translation>
    </message>
    <message>
        <source>month (hollow)</source>
        <translation>小月 (29 天)</translation>
    </message>
    <message>
        <source>month (full)</source>
        <translation>大月 (30 天)</translation>
    </message>
    <message>
        <source>year</source>
        <translatorcomment>CLDR: 年</translatorcomment>
        <translation>年</translation>
    </message>
    <message>
        <source>year (Gregorian)</source>
        <translation>年 (格里历)</translation>
    </message>
    <message>
        <source>year (Julian)</source>
        <translation>年 (儒略历)</translation>
    </message>
    <message>
        <source>sidereal year</source>
        <translation>恒星年</translation>
    </message>
    <message>
        <source>tropical year</source>
        <translation>回归年</translation>
    </message>
    <message>
        <source>annum</source>
        <translation>年 (annum)</translation>
    </message>
    <message>
        <source>decade</source>
        <translatorcomment>CLDR: 年代</translatorcomment>
        <translation>年代</translation>
    </message>
    <message>
        <source>century</source>
        <translatorcomment>CLDR: 个世纪</translatorcomment>
        <translation>个世纪</translation>
    </message>
    <message>
        <source>century (Julian)</source>
        <translation>世纪 (儒略历)</translation>
    </message>
    <message>
        <source>millenium</source>
        <translation>千年</translation>
    </message>
    <message>
        <source>millenium (Gregorian)</source>
        <translation>千年 (格里历)</translation>
    </message>
    <message>
        <source>millenium (Julian)</source>
        <translation>千年 (儒略历)</translation>
    </message>
    <message>
        <source>newton meter (torque)</source>
        <translation>牛顿米 (扭矩)</translation>
    </message>
    <message>
        <source>newton centimeter (torque)</source>
        <translation>牛顿厘米 (扭矩)</translation>
    </message>
    <message>
        <source>newton decameter (torque)</source>
        <translation>牛顿十米 (扭矩)</translation>
    </message>
    <message>
        <source>foot pound (torque)</source>
        <translation>英尺磅 (扭矩)</translation>
    </message>
    <message>
        <source>inch pound (torque)</source>
        <translation>英寸磅 (扭矩)</translation>
    </message>
    <message>
        <source>meter kilogram (torque)</source>
        <translation>米千克 (扭矩)</translation>
    </message>
    <message>
        <source>centimeter kilogram (torque)</source>
        <translation>厘米千克 (扭矩)</translation>
    </message>
    <message>
        <source>inch ounce (torque)</source>
        <translation>英寸盎司 (扭矩)</translation>
    </message>
    <message>
        <source>gram centimeter (torque)</source>
        <translation>克厘米 (扭矩)</translation>
    </message>
    <message>
        <source>decanewton meter (torque)</source>
        <translation>十牛米 (扭矩)</translation>
    </message>
    <message>
        <source>kilonewton meter (torque)</source>
        <translation>千牛米 (扭矩)</translation>
    </message>
    <message>
        <source>meganewton meter (torque)</source>
        <translation>兆牛米 (扭矩)</translation>
    </message>
    <message>
        <source>kip foot (torque)</source>
        <translation>千磅力英尺 (扭矩)</translation>
    </message>
    <message>
        <source>kilogram force meter (torque)</source>
        <translation>千克力米 (扭矩)</translation>
    </message>
    <message>
        <source>ton force meter (torque)</source>
        <translation>吨力米 (扭矩)</translation>
    </message>
    <message>
        <source>pound force foot (torque)</source>
        <translation>磅力英尺 (扭矩)</translation>
    </message>
    <message>
        <source>poise</source>
        <translation>泊</translation>
    </message>
    <message>
        <source>centipoise</source>
        <translation>厘泊</translation>
    </message>
    <message>
        <source>pascal second</source>
        <translatorcomment>CLDR: 帕斯卡⋅秒钟</translatorcomment>
        <translation>帕斯卡⋅秒钟</translation>
    </message>
    <message>
        <source>pound mass per foot second</source>
        <translation>每英尺每秒磅</translation>
    </message>
    <message>
        <source>pound mass per foot hour</source>
        <translation>每英尺每小时磅</translation>
    </message>
    <message>
        <source>stoke</source>
        <translation>斯托克斯</translation>
    </message>
    <message>
        <source>centistoke</source>
        <translation>厘斯</translation>
    </message>
    <message>
        <source>meter per second squared</source>
        <translatorcomment>CLDR: 每平方秒米</translatorcomment>
        <translation>每平方秒米</translation>
    </message>
    <message>
        <source>foot per second squared</source>
        <translation>每二次方秒英尺</translation>
    </message>
    <message>
        <source>survey foot per second squared</source>
        <translation>每二次方秒测量英尺</translation>
    </message>
    <message>
        <source>volt</source>
        <translatorcomment>CLDR: 伏特</translatorcomment>
        <translation>伏特</translation>
    </message>
    <message>
        <source>kilovolt</source>
        <translatorcomment>CLDR: 千伏特</translatorcomment>
        <translation>千伏特</translation>
    </message>
    <message>
        <source>microvolt</source>
        <translatorcomment>CLDR: 微伏特</translatorcomment>
        <translation>微伏特</translation>
    </message>
    <message>
        <source>millivolt</source>
        <translatorcomment>CLDR: 毫伏特</translatorcomment>
        <translation>毫伏特</translation>
    </message>
    <message>
        <source>volt (electrical potential)</source>
        <translation>伏特 (电位)</translation>
    </message>
    <message>
        <source>abvolt</source>
        <translation>绝对伏特</translation>
    </message>
    <message>
        <source>statvolt</source>
        <translation>静电伏特</translation>
    </message>
    <message>
        <source>candela</source>
        <translatorcomment>CLDR: 坎德拉</translatorcomment>
        <translation>坎德拉</translation>
    </message>
    <message>
        <source>lumen per steradian</source>
        <translation>每球面度流明</translation>
    </message>
    <message>
        <source>candlepower</source>
        <translation>烛光</translation>
    </message>
    <message>
        <source>Lux (Illuminance)</source>
        <translation>勒克斯 (照度)</translation>
    </message>
    <message>
        <source>footcandle</source>
        <translation>英尺烛光</translation>
    </message>
    <message>
        <source>lumen second</source>
        <translatorcomment>CLDR: 流明⋅秒钟</translatorcomment>
        <translation>流明⋅秒钟</translation>
    </message>
    <message>
        <source>talbots</source>
        <translation>塔尔博特</translation>
    </message>
    <message>
        <source>luminous power</source>
        <translation>光功率</translation>
    </message>
    <message>
        <source>lumen</source>
        <translatorcomment>CLDR: 流明</translatorcomment>
        <translation>流明</translation>
    </message>
    <message>
        <source>candela per square meter</source>
        <translatorcomment>CLDR: 每平方米坎德拉</translatorcomment>
        <translation>每平方米坎德拉</translation>
    </message>
    <message>
        <source>foot lambert</source>
        <translation>英尺朗伯</translation>
    </message>
    <message>
        <source>candela per square foot</source>
        <translatorcomment>CLDR: 每平方英尺坎德拉</translatorcomment>
        <translation>每平方英尺坎德拉</translation>
    </message>
    <message>
        <source>lux (emittance)</source>
        <translation>勒克斯 (光出射度)</translation>
    </message>
    <message>
        <source>lumen per watt</source>
        <translatorcomment>CLDR: 每瓦特流明</translatorcomment>
        <translation>每瓦特流明</translation>
    </message>
    <message>
        <source>pascal per meter</source>
        <translatorcomment>CLDR: 每米帕斯卡</translatorcomment>
        <translation>每米帕斯卡</translation>
    </message>
    <message>
        <source>inch of water per 100foot</source>
        <translation>每 100 英尺英寸水柱</translation>
    </message>
    <message>
        <source>foot of water per 100foot</source>
        <translation>每 100 英尺英尺水柱</translation>
    </message>
    <message>
        <source>inch of mercury per 100foot</source>
        <translation>每 100 英尺英寸汞柱</translation>
    </message>
    <message>
        <source>millimeter of mercury per 100foot</source>
        <translation>每 100 英尺毫米汞柱</translation>
    </message>
    <message>
        <source>newton meter per degree</source>
        <translatorcomment>CLDR: 每度牛顿米</translatorcomment>
        <translation>每度牛顿米</translation>
    </message>
    <message>
        <source>kip foot per degree</source>
        <translation>每度千磅力英尺</translation>
    </message>
    <message>
        <source>kilonewton meter per degree</source>
        <translatorcomment>CLDR: 每度千牛顿米</translatorcomment>
        <translation>每度千牛顿米</translation>
    </message>
    <message>
        <source>newton meter per degree per meter</source>
        <translation>每度每米牛顿米</translation>
    </message>
    <message>
        <source>kip foot per degree per foot</source>
        <translation>每度每英尺千磅力英尺</translation>
    </message>
    <message>
        <source>kilonewton meter per degree per meter</source>
        <translation>每度每米千牛米</translation>
    </message>
    <message>
        <source>watt per square meter kelvin</source>
        <translation>每平方米每开尔文瓦特</translation>
    </message>
    <message>
        <source>british thermal unit per hour square foot fahrenheit</source>
        <translation>每小时每平方英尺每华氏度英热单位</translation>
    </message>
    <message>
        <source>cubic meter per second square meter</source>
        <translation>每秒每平方米立方米</translation>
    </message>
    <message>
        <source>cubic foot per minute square foot</source>
        <translation>每分钟每平方英尺立方英尺</translation>
    </message>
    <message>
        <source>liter per second square meter</source>
        <translation>每秒每平方米升</translation>
    </message>
    <message>
        <source>cubic meter per second cubic meter</source>
        <translation>每秒每立方米立方米</translation>
    </message>
    <message>
        <source>cubic foot per minute cubic foot</source>
        <translation>每分钟每立方英尺立方英尺</translation>
    </message>
    <message>
        <source>liter per second cubic meter</source>
        <translation>每秒每立方米升</translation>
    </message>
    <message>
        <source>cubic meter per second watt</source>
        <translation>每秒每瓦特立方米</translation>
    </message>
    <message>
        <source>cubic foot per minute ton of refrigeration</source>
        <translation>每分钟每冷吨立方英尺</translation>
    </message>
    <message>
        <source>liter per second kilowatt</source>
        <translation>每秒每千瓦升</translation>
    </message>
    <message>
        <source>square meter per watt</source>
        <translatorcomment>CLDR: 每瓦特平方米</translatorcomment>
        <translation>每瓦特平方米</translation>
    </message>
    <message>
        <source>square foot per ton of refrigeration</source>
        <translation>每冷吨平方英尺</translation>
    </message>
    <message>
        <source>square meter per kilowatt</source>
        <translatorcomment>CLDR: 每千瓦平方米</translatorcomment>
        <translation>每千瓦平方米</translation>
    </message>
    <message>
        <source>square foot per thousand british thermal unit per hour</source>
        <translation>每小时每千英热单位平方英尺</translation>
    </message>
    <message>
        <source>square second per meter kilogram</source>
        <translation>每米每千克二次方秒</translation>
    </message>
    <message>
        <source>inverse kilonewton</source>
        <translation>千牛倒数</translation>
    </message>
    <message>
        <source>inverse kip</source>
        <translation>千磅力倒数</translation>
    </message>
    <message>
        <source>inverse fahrenheit</source>
        <translation>华氏度倒数</translation>
    </message>
    <message>
        <source>inverse celsius</source>
        <translation>摄氏度倒数</translation>
    </message>
    <message>
        <source>micrometer per meter celsius</source>
        <translation>每米每摄氏度微米</translation>
    </message>
    <message>
        <source>microinch per inch fahrenheit</source>
        <translation>每英寸每华氏度微英寸</translation>
    </message>
    <message>
        <source>oersted</source>
        <translation>奥斯特</translation>
    </message>
    <message>
        <source>Ampere per meter</source>
        <translatorcomment>CLDR: 每米安培</translatorcomment>
        <translation>每米安培</translation>
    </message>
    <message>
        <source>watt per meter kelvin</source>
        <translation>每米每开尔文瓦特</translation>
    </message>
    <message>
        <source>watt per meter celsius</source>
        <translation>每米每摄氏度瓦特</translation>
    </message>
    <message>
        <source>newton per second celsius</source>
        <translation>每秒每摄氏度牛顿</translation>
    </message>
    <message>
        <source>dyne per second celsius</source>
        <translation>每秒每摄氏度达因</translation>
    </message>
    <message>
        <source>BTU inch per square foot hour fahrenheit</source>
        <translation>每平方英尺每小时每华氏度英热单位英寸</translation>
    </message>
    <message>
        <source>BTU per inch second fahrenheit</source>
        <translation>每英寸每秒每华氏度英热单位</translation>
    </message>
    <message>
        <source>BTU per foot second fahrenheit</source>
        <translation>每英尺每秒每华氏度英热单位</translation>
    </message>
    <message>
        <source>BTU per foot hour fahrenheit</source>
        <translation>每英尺每小时每华氏度英热单位</translation>
    </message>
    <message>
        <source>joule per gram celsius</source>
        <translation>每克每摄氏度焦耳</translation>
    </message>
    <message>
        <source>joule per kilogram celsius</source>
        <translation>每千克每摄氏度焦耳</translation>
    </message>
    <message>
        <source>square millimeter per square second celsius</source>
        <translation>每二次方秒每摄氏度平方毫米</translation>
    </message>
    <message>
        <source>erg per gram celsius</source>
        <translation>每克每摄氏度尔格</translation>
    </message>
    <message>
        <source>square micrometer per square second celsius</source>
        <translation>每二次方秒每摄氏度平方微米</translation>
    </message>
    <message>
        <source>BTU per pound fahrenheit</source>
        <translation>每磅每华氏度英热单位</translation>
    </message>
    <message>
        <source>nanogram per pascal second square meter</source>
        <translation>每帕斯卡每秒每平方米纳克</translation>
    </message>
    <message>
        <source>grain per square foot hour inches mercury</source>
        <translation>每平方英尺每小时每英寸汞柱格令</translation>
    </message>
    <message>
        <source>ohm meter</source>
        <translatorcomment>CLDR: 欧姆⋅米</translatorcomment>
        <translation>欧姆⋅米</translation>
    </message>
    <message>
        <source>joule per gram</source>
        <translatorcomment>CLDR: 每克焦耳</translatorcomment>
        <translation>每克焦耳</translation>
    </message>
    <message>
        <source>joule per kilogram</source>
        <translatorcomment>CLDR: 每千克焦耳</translatorcomment>
        <translation>每千克焦耳</translation>
    </message>
    <message>
        <source>BTU per pound</source>
        <translation>每磅英热单位</translation>
    </message>
</context>
</TS>
