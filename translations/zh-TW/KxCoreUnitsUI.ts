<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name>NumberFormat</name>
    <message>
        <source>Exponential</source>
        <translation>指數</translation>
    </message>
    <message>
        <source>exponential</source>
        <translation>指數 (小寫)</translation>
    </message>
    <message>
        <source>Fixed Point</source>
        <translation>定點</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常規</translation>
    </message>
    <message>
        <source>general</source>
        <translation>常規 (小寫)</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>數值</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>分數</translation>
    </message>
</context>
<context>
    <name>UnitGroup</name>
    <message>
        <source>Dimensionless</source>
        <translation>無量綱</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長度</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>面積</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>體積</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>質量</translation>
    </message>
    <message>
        <source>Linear Weight</source>
        <translation>線密度</translation>
    </message>
    <message>
        <source>Amount of Substance</source>
        <translation>物質的量</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>Solid Angle</source>
        <translation>立體角</translation>
    </message>
    <message>
        <source>Area Density</source>
        <translation>面密度</translation>
    </message>
    <message>
        <source>Concentration</source>
        <translation>濃度</translation>
    </message>
    <message>
        <source>Parts-per</source>
        <translation>比率 (ppm, ppb)</translation>
    </message>
    <message>
        <source>Electric Current</source>
        <translation>電流</translation>
    </message>
    <message>
        <source>Electric Charge</source>
        <translation>電荷</translation>
    </message>
    <message>
        <source>Capacitance</source>
        <translation>電容</translation>
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
        <translation>體積流量</translation>
    </message>
    <message>
        <source>Mass Flow Rate</source>
        <translation>質量流量</translation>
    </message>
    <message>
        <source>Flow Rate per Stroke</source>
        <translation>每衝程排量</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>力</translation>
    </message>
    <message>
        <source>Linear Force</source>
        <translation>線荷載</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>頻率</translation>
    </message>
    <message>
        <source>Inductance</source>
        <translation>電感</translation>
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
        <translation>單位體積功率</translation>
    </message>
    <message>
        <source>Power per Unit of Mass</source>
        <translation>單位質量功率</translation>
    </message>
    <message>
        <source>Power per Unit of Area</source>
        <translation>單位面積功率</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>壓力</translation>
    </message>
    <message>
        <source>Force Scale</source>
        <translation>力比例</translation>
    </message>
    <message>
        <source>Linear Force Scale</source>
        <translation>線荷載比例</translation>
    </message>
    <message>
        <source>Area Force Scale</source>
        <translation>面荷載比例</translation>
    </message>
    <message>
        <source>Linear Moment</source>
        <translation>線彎矩</translation>
    </message>
    <message>
        <source>Electrical Resistance</source>
        <translation>電阻</translation>
    </message>
    <message>
        <source>Electric Conductance</source>
        <translation>電導</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Computer Storage</source>
        <translation>存儲容量</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>溫度</translation>
    </message>
    <message>
        <source>Temperature Rate</source>
        <translation>溫度變化率</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Torque</source>
        <translation>扭矩</translation>
    </message>
    <message>
        <source>Dynamic Viscosity</source>
        <translation>動力黏度</translation>
    </message>
    <message>
        <source>Kinematic Viscosity</source>
        <translation>運動黏度</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>加速度</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>電壓</translation>
    </message>
    <message>
        <source>Electric Potential</source>
        <translation>電位</translation>
    </message>
    <message>
        <source>Luminous Intensity</source>
        <translation>發光強度</translation>
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
        <translation>發光效率</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>摩擦壓降</translation>
    </message>
    <message>
        <source>Rotational Point Spring Coefficient</source>
        <translation>點轉動彈簧系數</translation>
    </message>
    <message>
        <source>Rotational Line Spring Coefficient</source>
        <translation>線轉動彈簧系數</translation>
    </message>
    <message>
        <source>Heat Transfer Coefficient</source>
        <translation>傳熱系數</translation>
    </message>
    <message>
        <source>Airflow Density</source>
        <translation>風量密度</translation>
    </message>
    <message>
        <source>Airflow Divided by Volume</source>
        <translation>單位體積風量</translation>
    </message>
    <message>
        <source>Airflow Divided by Power</source>
        <translation>單位功率風量</translation>
    </message>
    <message>
        <source>Area Divided by Power</source>
        <translation>單位功率面積</translation>
    </message>
    <message>
        <source>Moment Scale</source>
        <translation>彎矩比例</translation>
    </message>
    <message>
        <source>Coefficient of Thermal Expansion</source>
        <translation>熱膨脹系數</translation>
    </message>
    <message>
        <source>Magnetic Field Intensity</source>
        <translation>磁場強度</translation>
    </message>
    <message>
        <source>Thermal Conductivity</source>
        <translation>導熱系數</translation>
    </message>
    <message>
        <source>Specific Heat</source>
        <translation>比熱容</translation>
    </message>
    <message>
        <source>Permeability</source>
        <translation>透濕系數</translation>
    </message>
    <message>
        <source>Electrical Resistivity</source>
        <translation>電阻率</translation>
    </message>
    <message>
        <source>Specific Heat of Vaporization</source>
        <translation>汽化熱</translation>
    </message>
</context>
<context>
    <name>UnitType</name>
    <message>
        <source>unitless</source>
        <translation>無單位</translation>
    </message>
    <message>
        <source>meter</source>
        <translatorcomment>CLDR: 公尺</translatorcomment>
        <translation>公尺</translation>
    </message>
    <message>
        <source>yottameter</source>
        <translation>佑米</translation>
    </message>
    <message>
        <source>zettameter</source>
        <translation>皆米</translation>
    </message>
    <message>
        <source>exameter</source>
        <translation>艾米</translation>
    </message>
    <message>
        <source>petameter</source>
        <translation>拍米</translation>
    </message>
    <message>
        <source>terameter</source>
        <translation>太米</translation>
    </message>
    <message>
        <source>gigameter</source>
        <translation>吉米</translation>
    </message>
    <message>
        <source>megameter</source>
        <translation>兆米</translation>
    </message>
    <message>
        <source>kilometer</source>
        <translatorcomment>CLDR: 公里</translatorcomment>
        <translation>公里</translation>
    </message>
    <message>
        <source>hectometer</source>
        <translation>公引</translation>
    </message>
    <message>
        <source>decameter</source>
        <translation>公丈</translation>
    </message>
    <message>
        <source>decimeter</source>
        <translatorcomment>CLDR: 公寸</translatorcomment>
        <translation>公寸</translation>
    </message>
    <message>
        <source>centimeter</source>
        <translatorcomment>CLDR: 公分</translatorcomment>
        <translation>公分</translation>
    </message>
    <message>
        <source>millimeter</source>
        <translatorcomment>CLDR: 公釐</translatorcomment>
        <translation>公釐</translation>
    </message>
    <message>
        <source>micrometer</source>
        <translatorcomment>CLDR: 微米</translatorcomment>
        <translation>微米</translation>
    </message>
    <message>
        <source>nanometer</source>
        <translatorcomment>CLDR: 奈米</translatorcomment>
        <translation>奈米</translation>
    </message>
    <message>
        <source>picometer</source>
        <translatorcomment>CLDR: 皮米</translatorcomment>
        <translation>皮米</translation>
    </message>
    <message>
        <source>femtometer</source>
        <translation>飛米</translation>
    </message>
    <message>
        <source>attometer</source>
        <translation>阿米</translation>
    </message>
    <message>
        <source>zeptometer</source>
        <translation>仄米</translation>
    </message>
    <message>
        <source>yoctometer</source>
        <translation>麼米</translation>
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
        <translation>英尺 (克拉克; 開普)</translation>
    </message>
    <message>
        <source>foot (Indian)</source>
        <translation>英尺 (印度)</translation>
    </message>
    <message>
        <source>foot (Sear&apos;s)</source>
        <translation>英尺 (西爾斯)</translation>
    </message>
    <message>
        <source>foot (U.S. Survey)</source>
        <translation>美國測量英尺</translation>
    </message>
    <message>
        <source>yard</source>
        <translatorcomment>CLDR: 碼</translatorcomment>
        <translation>碼</translation>
    </message>
    <message>
        <source>chain</source>
        <translation>測鏈</translation>
    </message>
    <message>
        <source>chain (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>測鏈 (拉姆斯登; 工程師)</translation>
    </message>
    <message>
        <source>furlong</source>
        <translatorcomment>CLDR: 化朗</translatorcomment>
        <translation>化朗</translation>
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
        <translation>美國測量英里</translation>
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
        <translation>海里 (英國海軍部)</translation>
    </message>
    <message>
        <source>micron</source>
        <translation>微米 (micron)</translation>
    </message>
    <message>
        <source>microinch</source>
        <translation>微英寸</translation>
    </message>
    <message>
        <source>angstrom</source>
        <translation>埃</translation>
    </message>
    <message>
        <source>astronomical unit</source>
        <translatorcomment>CLDR: 天文單位</translatorcomment>
        <translation>天文單位</translation>
    </message>
    <message>
        <source>cable</source>
        <translation>鏈 (航海)</translation>
    </message>
    <message>
        <source>cubit</source>
        <translation>腕尺</translation>
    </message>
    <message>
        <source>fathom</source>
        <translatorcomment>CLDR: 英尋</translatorcomment>
        <translation>英尋</translation>
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
        <translation>斯堪的納維亞英里 (瑞典和挪威)</translation>
    </message>
    <message>
        <source>link</source>
        <translation>令 (link)</translation>
    </message>
    <message>
        <source>link (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>令 (拉姆斯登; 工程師)</translation>
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
        <translation>桿</translation>
    </message>
    <message>
        <source>rope</source>
        <translation>繩 (20 英尺)</translation>
    </message>
    <message>
        <source>skein</source>
        <translation>絞</translation>
    </message>
    <message>
        <source>caliber</source>
        <translation>口徑</translation>
    </message>
    <message>
        <source>survey inch</source>
        <translation>測量英寸</translation>
    </message>
    <message>
        <source>survey yard</source>
        <translation>測量碼</translation>
    </message>
    <message>
        <source>survey rod</source>
        <translation>測量桿</translation>
    </message>
    <message>
        <source>bolt</source>
        <translation>匹 (布)</translation>
    </message>
    <message>
        <source>square meter</source>
        <translatorcomment>CLDR: 平方公尺</translatorcomment>
        <translation>平方公尺</translation>
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
        <translatorcomment>CLDR: 平方碼</translatorcomment>
        <translation>平方碼</translation>
    </message>
    <message>
        <source>acre</source>
        <translatorcomment>CLDR: 英畝</translatorcomment>
        <translation>英畝</translation>
    </message>
    <message>
        <source>section</source>
        <translation>平方英里地段</translation>
    </message>
    <message>
        <source>township</source>
        <translation>鎮區 (36 平方英里)</translation>
    </message>
    <message>
        <source>hectare</source>
        <translatorcomment>CLDR: 公頃</translatorcomment>
        <translation>公頃</translation>
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
        <translatorcomment>CLDR: 平方公分</translatorcomment>
        <translation>平方公分</translation>
    </message>
    <message>
        <source>square millimeter</source>
        <translation>平方公釐</translation>
    </message>
    <message>
        <source>circular mil</source>
        <translation>圓密耳</translation>
    </message>
    <message>
        <source>kilo-circular mil</source>
        <translation>千圓密耳</translation>
    </message>
    <message>
        <source>are</source>
        <translation>公畝</translation>
    </message>
    <message>
        <source>barn</source>
        <translation>靶恩</translation>
    </message>
    <message>
        <source>centare</source>
        <translation>平方公尺 (釐公畝)</translation>
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
        <translation>平方鏈 (航海)</translation>
    </message>
    <message>
        <source>square caliber</source>
        <translation>平方口徑</translation>
    </message>
    <message>
        <source>square cubit</source>
        <translation>平方腕尺</translation>
    </message>
    <message>
        <source>square decimeter</source>
        <translation>平方公寸</translation>
    </message>
    <message>
        <source>square fathom</source>
        <translation>平方英尋</translation>
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
        <translation>平方英里 (英國海里)</translation>
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
        <translation>平方桿 (perch)</translation>
    </message>
    <message>
        <source>square rope</source>
        <translation>平方繩</translation>
    </message>
    <message>
        <source>square skein</source>
        <translation>平方絞</translation>
    </message>
    <message>
        <source>square span</source>
        <translation>平方拃</translation>
    </message>
    <message>
        <source>square survey foot</source>
        <translation>平方測量英尺</translation>
    </message>
    <message>
        <source>square chain</source>
        <translation>平方測鏈</translation>
    </message>
    <message>
        <source>square mil</source>
        <translation>平方密耳</translation>
    </message>
    <message>
        <source>square astronomical unit</source>
        <translation>平方天文單位</translation>
    </message>
    <message>
        <source>survey acre</source>
        <translation>測量英畝</translation>
    </message>
    <message>
        <source>square survey yard</source>
        <translation>平方測量碼</translation>
    </message>
    <message>
        <source>board</source>
        <translation>板 (board)</translation>
    </message>
    <message>
        <source>cord</source>
        <translation>考得 (面積)</translation>
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
        <translatorcomment>CLDR: 公升</translatorcomment>
        <translation>公升</translation>
    </message>
    <message>
        <source>cubic centimeter</source>
        <translatorcomment>CLDR: 立方公分</translatorcomment>
        <translation>立方公分</translation>
    </message>
    <message>
        <source>tablespoon</source>
        <translatorcomment>CLDR: 湯匙</translatorcomment>
        <translation>湯匙</translation>
    </message>
    <message>
        <source>tablespoon (Canadian)</source>
        <translation>湯匙 (加拿大)</translation>
    </message>
    <message>
        <source>tablespoon (U.S.)</source>
        <translation>湯匙 (美國)</translation>
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
        <translation>杯 (美國)</translation>
    </message>
    <message>
        <source>quart (imperial)</source>
        <translation>夸脫 (英制)</translation>
    </message>
    <message>
        <source>quart (U.S. fluid)</source>
        <translation>夸脫 (美制液量)</translation>
    </message>
    <message>
        <source>quart (U.S. dry)</source>
        <translation>夸脫 (美制乾量)</translation>
    </message>
    <message>
        <source>gallon (imperial)</source>
        <translation>加侖 (英制)</translation>
    </message>
    <message>
        <source>gallon (U.S. fluid; Wine)</source>
        <translation>加侖 (美制液量; 葡萄酒)</translation>
    </message>
    <message>
        <source>gallon (U.S. dry)</source>
        <translation>加侖 (美制乾量)</translation>
    </message>
    <message>
        <source>beer gallon</source>
        <translation>啤酒加侖</translation>
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
        <translatorcomment>CLDR: 釐升</translatorcomment>
        <translation>釐升</translation>
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
        <translatorcomment>CLDR: 立方公尺</translatorcomment>
        <translation>立方公尺</translation>
    </message>
    <message>
        <source>cubic yard</source>
        <translatorcomment>CLDR: 立方碼</translatorcomment>
        <translation>立方碼</translation>
    </message>
    <message>
        <source>fluid dram</source>
        <translation>液量打蘭 (美制)</translation>
    </message>
    <message>
        <source>microliter</source>
        <translation>微公升</translation>
    </message>
    <message>
        <source>milliliter</source>
        <translatorcomment>CLDR: 毫升</translatorcomment>
        <translation>毫升</translation>
    </message>
    <message>
        <source>pint (imperial)</source>
        <translation>品脫 (英制)</translation>
    </message>
    <message>
        <source>pint (U.S. fluid)</source>
        <translation>品脫 (美制液量)</translation>
    </message>
    <message>
        <source>pint (U.S. dry)</source>
        <translation>品脫 (美制乾量)</translation>
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
        <translation>茶匙 (美國)</translation>
    </message>
    <message>
        <source>teaspoon (imperial)</source>
        <translation>茶匙 (英制)</translation>
    </message>
    <message>
        <source>cubic millimeter</source>
        <translation>立方公釐</translation>
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
        <translation>桶 (美制乾量)</translation>
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
        <translation>分立方公尺 (decistere)</translation>
    </message>
    <message>
        <source>dekaliter</source>
        <translation>公斗</translation>
    </message>
    <message>
        <source>dekastere</source>
        <translation>十立方公尺 (dekastere)</translation>
    </message>
    <message>
        <source>dram</source>
        <translatorcomment>CLDR: 打蘭</translatorcomment>
        <translation>打蘭</translation>
    </message>
    <message>
        <source>firkin</source>
        <translation>費爾金</translation>
    </message>
    <message>
        <source>cubic angstrom</source>
        <translation>立方埃</translation>
    </message>
    <message>
        <source>cubic astronomical unit</source>
        <translation>立方天文單位</translation>
    </message>
    <message>
        <source>cubic bolt</source>
        <translation>立方匹</translation>
    </message>
    <message>
        <source>cubic cable</source>
        <translation>立方鏈 (航海)</translation>
    </message>
    <message>
        <source>cubic caliber</source>
        <translation>立方口徑</translation>
    </message>
    <message>
        <source>cubic chain</source>
        <translation>立方測鏈</translation>
    </message>
    <message>
        <source>cubic cubit</source>
        <translation>立方腕尺</translation>
    </message>
    <message>
        <source>cubic fathom</source>
        <translation>立方英尋</translation>
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
        <translation>立方公引</translation>
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
        <translation>立方英里 (英國海里)</translation>
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
        <translation>立方桿 (perch)</translation>
    </message>
    <message>
        <source>cubic rope</source>
        <translation>立方繩</translation>
    </message>
    <message>
        <source>cubic skein</source>
        <translation>立方絞</translation>
    </message>
    <message>
        <source>cubic span</source>
        <translation>立方拃</translation>
    </message>
    <message>
        <source>cubic survey foot</source>
        <translation>立方測量英尺</translation>
    </message>
    <message>
        <source>cubic decimeter</source>
        <translation>立方公寸</translation>
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
        <translation>配克 (美制乾量)</translation>
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
        <translation>公秉</translation>
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
        <translation>立方測量碼</translation>
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
        <translation>登記噸</translation>
    </message>
    <message>
        <source>acre-foot</source>
        <translatorcomment>CLDR: 英畝英尺</translatorcomment>
        <translation>英畝英尺</translation>
    </message>
    <message>
        <source>acre-inch</source>
        <translation>英畝英寸</translation>
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
        <translatorcomment>CLDR: 立方公里</translatorcomment>
        <translation>立方公里</translation>
    </message>
    <message>
        <source>kilogram</source>
        <translatorcomment>CLDR: 公斤</translatorcomment>
        <translation>公斤</translation>
    </message>
    <message>
        <source>gram</source>
        <translatorcomment>CLDR: 克</translatorcomment>
        <translation>克</translation>
    </message>
    <message>
        <source>yottagram</source>
        <translation>佑克</translation>
    </message>
    <message>
        <source>zettagram</source>
        <translation>皆克</translation>
    </message>
    <message>
        <source>exagram</source>
        <translation>艾克</translation>
    </message>
    <message>
        <source>petagram</source>
        <translation>拍克</translation>
    </message>
    <message>
        <source>teragram</source>
        <translation>太克</translation>
    </message>
    <message>
        <source>gigagram</source>
        <translation>吉克</translation>
    </message>
    <message>
        <source>megagram</source>
        <translation>兆克</translation>
    </message>
    <message>
        <source>hectogram</source>
        <translation>公兩</translation>
    </message>
    <message>
        <source>decagram</source>
        <translation>公錢</translation>
    </message>
    <message>
        <source>decigram</source>
        <translation>公銖</translation>
    </message>
    <message>
        <source>centigram</source>
        <translation>公毫</translation>
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
        <translation>奈克</translation>
    </message>
    <message>
        <source>picogram</source>
        <translation>皮克</translation>
    </message>
    <message>
        <source>femtogram</source>
        <translation>飛克</translation>
    </message>
    <message>
        <source>attogram</source>
        <translation>阿克</translation>
    </message>
    <message>
        <source>zeptogram</source>
        <translation>仄克</translation>
    </message>
    <message>
        <source>yoctogram</source>
        <translation>麼克</translation>
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
        <translation>藥衡盎司 (金衡)</translation>
    </message>
    <message>
        <source>stone</source>
        <translatorcomment>CLDR: 英石</translatorcomment>
        <translation>英石</translation>
    </message>
    <message>
        <source>short ton</source>
        <translation>短噸</translation>
    </message>
    <message>
        <source>long ton</source>
        <translation>長噸</translation>
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
        <translation>常衡打蘭</translation>
    </message>
    <message>
        <source>dram (apothecary; troy)</source>
        <translation>藥衡打蘭 (金衡)</translation>
    </message>
    <message>
        <source>pennyweight</source>
        <translation>英錢</translation>
    </message>
    <message>
        <source>tael</source>
        <translation>兩</translation>
    </message>
    <message>
        <source>tola</source>
        <translation>托拉</translation>
    </message>
    <message>
        <source>long hundredweight</source>
        <translation>長擔</translation>
    </message>
    <message>
        <source>short hundredweight</source>
        <translation>短擔</translation>
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
        <translatorcomment>CLDR: 達爾頓</translatorcomment>
        <translation>達爾頓</translation>
    </message>
    <message>
        <source>kilodalton</source>
        <translation>千道爾頓</translation>
    </message>
    <message>
        <source>slug</source>
        <translation>斯勒格</translation>
    </message>
    <message>
        <source>kilogram per meter</source>
        <translatorcomment>CLDR: 每公尺 公斤</translatorcomment>
        <translation>每公尺 公斤</translation>
    </message>
    <message>
        <source>pound per foot</source>
        <translatorcomment>CLDR: 每英尺 磅</translatorcomment>
        <translation>每英尺 磅</translation>
    </message>
    <message>
        <source>mole</source>
        <translatorcomment>CLDR: 莫耳</translatorcomment>
        <translation>莫耳</translation>
    </message>
    <message>
        <source>yottamole</source>
        <translation>佑莫耳</translation>
    </message>
    <message>
        <source>zettamole</source>
        <translation>皆莫耳</translation>
    </message>
    <message>
        <source>examole</source>
        <translation>艾莫耳</translation>
    </message>
    <message>
        <source>petamole</source>
        <translation>拍莫耳</translation>
    </message>
    <message>
        <source>teramole</source>
        <translation>太莫耳</translation>
    </message>
    <message>
        <source>gigamole</source>
        <translation>吉莫耳</translation>
    </message>
    <message>
        <source>megamole</source>
        <translation>兆莫耳</translation>
    </message>
    <message>
        <source>kilomole</source>
        <translation>千莫耳</translation>
    </message>
    <message>
        <source>hectomole</source>
        <translation>百莫耳</translation>
    </message>
    <message>
        <source>decamole</source>
        <translation>十莫耳</translation>
    </message>
    <message>
        <source>decimole</source>
        <translation>分莫耳</translation>
    </message>
    <message>
        <source>centimole</source>
        <translation>釐莫耳</translation>
    </message>
    <message>
        <source>millimole</source>
        <translation>毫莫耳</translation>
    </message>
    <message>
        <source>micromole</source>
        <translation>微莫耳</translation>
    </message>
    <message>
        <source>nanomole</source>
        <translation>奈莫耳</translation>
    </message>
    <message>
        <source>picomole</source>
        <translation>皮莫耳</translation>
    </message>
    <message>
        <source>femtomole</source>
        <translation>飛莫耳</translation>
    </message>
    <message>
        <source>attomole</source>
        <translation>阿莫耳</translation>
    </message>
    <message>
        <source>zeptomole</source>
        <translation>仄莫耳</translation>
    </message>
    <message>
        <source>yoctomole</source>
        <translation>麼莫耳</translation>
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
        <translation>毫弧度</translation>
    </message>
    <message>
        <source>grad</source>
        <translation>百分度</translation>
    </message>
    <message>
        <source>angular mil (NATO)</source>
        <translation>密位 (北約)</translation>
    </message>
    <message>
        <source>angular mil (Sweden)</source>
        <translation>密位 (瑞典)</translation>
    </message>
    <message>
        <source>angular mil (USSR)</source>
        <translation>密位 (蘇聯)</translation>
    </message>
    <message>
        <source>angle minute</source>
        <translatorcomment>CLDR: 角分</translatorcomment>
        <translation>角分</translation>
    </message>
    <message>
        <source>angle second</source>
        <translatorcomment>CLDR: 角秒</translatorcomment>
        <translation>角秒</translation>
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
        <translatorcomment>CLDR: 每平方公尺 克</translatorcomment>
        <translation>每平方公尺 克</translation>
    </message>
    <message>
        <source>gram per square inch</source>
        <translatorcomment>CLDR: 每平方英寸 克</translatorcomment>
        <translation>每平方英寸 克</translation>
    </message>
    <message>
        <source>nanogram per liter</source>
        <translation>每公升奈克</translation>
    </message>
    <message>
        <source>nanogram per deciliter</source>
        <translation>每公合奈克</translation>
    </message>
    <message>
        <source>nanogram per milliliter</source>
        <translation>每毫升奈克</translation>
    </message>
    <message>
        <source>nanogram per microliter</source>
        <translation>每微公升奈克</translation>
    </message>
    <message>
        <source>part per million</source>
        <translatorcomment>CLDR: 百萬分率</translatorcomment>
        <translation>百萬分率</translation>
    </message>
    <message>
        <source>part per billion</source>
        <translation>十億分之</translation>
    </message>
    <message>
        <source>ampere</source>
        <translatorcomment>CLDR: 安培</translatorcomment>
        <translation>安培</translation>
    </message>
    <message>
        <source>yottaampere</source>
        <translation>佑安培</translation>
    </message>
    <message>
        <source>zettaampere</source>
        <translation>皆安培</translation>
    </message>
    <message>
        <source>exaampere</source>
        <translation>艾安培</translation>
    </message>
    <message>
        <source>petaampere</source>
        <translation>拍安培</translation>
    </message>
    <message>
        <source>teraampere</source>
        <translation>太安培</translation>
    </message>
    <message>
        <source>gigaampere</source>
        <translation>吉安培</translation>
    </message>
    <message>
        <source>megaampere</source>
        <translation>兆安培</translation>
    </message>
    <message>
        <source>kiloampere</source>
        <translation>千安培</translation>
    </message>
    <message>
        <source>hectoampere</source>
        <translation>百安培</translation>
    </message>
    <message>
        <source>decaampere</source>
        <translation>十安培</translation>
    </message>
    <message>
        <source>deciampere</source>
        <translation>分安培</translation>
    </message>
    <message>
        <source>centiampere</source>
        <translation>釐安培</translation>
    </message>
    <message>
        <source>milliampere</source>
        <translatorcomment>CLDR: 毫安培</translatorcomment>
        <translation>毫安培</translation>
    </message>
    <message>
        <source>microampere</source>
        <translation>微安培</translation>
    </message>
    <message>
        <source>nanoampere</source>
        <translation>奈安培</translation>
    </message>
    <message>
        <source>picoampere</source>
        <translation>皮安培</translation>
    </message>
    <message>
        <source>femtoampere</source>
        <translation>飛安培</translation>
    </message>
    <message>
        <source>attoampere</source>
        <translation>阿安培</translation>
    </message>
    <message>
        <source>zeptoampere</source>
        <translation>仄安培</translation>
    </message>
    <message>
        <source>yoctoampere</source>
        <translation>麼安培</translation>
    </message>
    <message>
        <source>coulomb</source>
        <translation>庫侖</translation>
    </message>
    <message>
        <source>ampere hour</source>
        <translatorcomment>CLDR: 安培⋅小時</translatorcomment>
        <translation>安培⋅小時</translation>
    </message>
    <message>
        <source>milliampere hour</source>
        <translatorcomment>CLDR: 毫安培⋅小時</translatorcomment>
        <translation>毫安培⋅小時</translation>
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
        <translation>佑法拉</translation>
    </message>
    <message>
        <source>zettafarad</source>
        <translation>皆法拉</translation>
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
        <translation>釐法拉</translation>
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
        <translation>奈法拉</translation>
    </message>
    <message>
        <source>picofarad</source>
        <translation>皮法拉</translation>
    </message>
    <message>
        <source>femtofarad</source>
        <translation>飛法拉</translation>
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
        <translation>麼法拉</translation>
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
        <translatorcomment>CLDR: 每秒 bit</translatorcomment>
        <translation>每秒 bit</translation>
    </message>
    <message>
        <source>byte per second</source>
        <translatorcomment>CLDR: 每秒 byte</translatorcomment>
        <translation>每秒 byte</translation>
    </message>
    <message>
        <source>kilobaud</source>
        <translation>千波特</translation>
    </message>
    <message>
        <source>kilobit per second</source>
        <translatorcomment>CLDR: 每秒 kb</translatorcomment>
        <translation>每秒 kb</translation>
    </message>
    <message>
        <source>kilobyte per second</source>
        <translatorcomment>CLDR: 每秒 kB</translatorcomment>
        <translation>每秒 kB</translation>
    </message>
    <message>
        <source>megabaud</source>
        <translation>兆波特</translation>
    </message>
    <message>
        <source>megabit per second</source>
        <translatorcomment>CLDR: 每秒 Mb</translatorcomment>
        <translation>每秒 Mb</translation>
    </message>
    <message>
        <source>megabyte per second</source>
        <translatorcomment>CLDR: 每秒 MB</translatorcomment>
        <translation>每秒 MB</translation>
    </message>
    <message>
        <source>kilogram per cubic meter</source>
        <translatorcomment>CLDR: 每立方公尺 公斤</translatorcomment>
        <translation>每立方公尺 公斤</translation>
    </message>
    <message>
        <source>kilogram per liter</source>
        <translatorcomment>CLDR: 每公升 公斤</translatorcomment>
        <translation>每公升 公斤</translation>
    </message>
    <message>
        <source>gram per liter</source>
        <translatorcomment>CLDR: 每公升 克</translatorcomment>
        <translation>每公升 克</translation>
    </message>
    <message>
        <source>microgram per milliliter</source>
        <translatorcomment>CLDR: 每毫升 微克</translatorcomment>
        <translation>每毫升 微克</translation>
    </message>
    <message>
        <source>milligram per milliliter</source>
        <translatorcomment>CLDR: 每毫升 毫克</translatorcomment>
        <translation>每毫升 毫克</translation>
    </message>
    <message>
        <source>pound per gallon</source>
        <translatorcomment>CLDR: 每加侖 磅</translatorcomment>
        <translation>每加侖 磅</translation>
    </message>
    <message>
        <source>ounce per gallon</source>
        <translatorcomment>CLDR: 每加侖 盎司</translatorcomment>
        <translation>每加侖 盎司</translation>
    </message>
    <message>
        <source>pound per cubic foot</source>
        <translatorcomment>CLDR: 每立方英尺 磅</translatorcomment>
        <translation>每立方英尺 磅</translation>
    </message>
    <message>
        <source>pound per cubic inch</source>
        <translatorcomment>CLDR: 每立方英寸 磅</translatorcomment>
        <translation>每立方英寸 磅</translation>
    </message>
    <message>
        <source>gram per cubic centimeter</source>
        <translatorcomment>CLDR: 每立方公分 克</translatorcomment>
        <translation>每立方公分 克</translation>
    </message>
    <message>
        <source>newton square second per quartic millimeter</source>
        <translation>牛頓二次方秒每四次方公釐</translation>
    </message>
    <message>
        <source>newton per cubic meter</source>
        <translatorcomment>CLDR: 每立方公尺 牛頓</translatorcomment>
        <translation>每立方公尺 牛頓</translation>
    </message>
    <message>
        <source>kilonewton per cubic meter</source>
        <translation>每立方公尺千牛頓</translation>
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
        <translatorcomment>CLDR: 千卡路里</translatorcomment>
        <translation>千卡路里</translation>
    </message>
    <message>
        <source>British thermal unit (thermochemical)</source>
        <translation>英熱單位 (熱化學)</translation>
    </message>
    <message>
        <source>British thermal unit (ISO)</source>
        <translation>英熱單位 (ISO)</translation>
    </message>
    <message>
        <source>British thermal unit (63 degree F)</source>
        <translation>英熱單位 (63 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (60 degree F)</source>
        <translation>英熱單位 (60 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (59 degree F)</source>
        <translation>英熱單位 (59 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (International Table)</source>
        <translation>英熱單位 (國際蒸汽表)</translation>
    </message>
    <message>
        <source>British thermal unit (mean)</source>
        <translation>英熱單位 (平均)</translation>
    </message>
    <message>
        <source>British thermal unit (39 degree F)</source>
        <translation>英熱單位 (39 °F)</translation>
    </message>
    <message>
        <source>kiloelectronvolt</source>
        <translation>千電子伏特</translation>
    </message>
    <message>
        <source>megaelectronvolt</source>
        <translation>兆電子伏特</translation>
    </message>
    <message>
        <source>electronvolt</source>
        <translatorcomment>CLDR: 電子伏特</translatorcomment>
        <translation>電子伏特</translation>
    </message>
    <message>
        <source>erg</source>
        <translation>爾格</translation>
    </message>
    <message>
        <source>kilowatt hour</source>
        <translatorcomment>CLDR: 千瓦小時</translatorcomment>
        <translation>千瓦小時</translation>
    </message>
    <message>
        <source>kilowatt minute</source>
        <translatorcomment>CLDR: 千瓦特⋅分鐘</translatorcomment>
        <translation>千瓦特⋅分鐘</translation>
    </message>
    <message>
        <source>kilowatt second</source>
        <translatorcomment>CLDR: 千瓦特⋅秒</translatorcomment>
        <translation>千瓦特⋅秒</translation>
    </message>
    <message>
        <source>therm (U.S.)</source>
        <translation>撒姆 (美制)</translation>
    </message>
    <message>
        <source>newton meter</source>
        <translatorcomment>CLDR: 牛頓米</translatorcomment>
        <translation>牛頓米</translation>
    </message>
    <message>
        <source>decanewton meter</source>
        <translation>十牛頓公尺</translation>
    </message>
    <message>
        <source>kilonewton meter</source>
        <translation>千牛頓公尺</translation>
    </message>
    <message>
        <source>meganewton meter</source>
        <translation>兆牛頓公尺</translation>
    </message>
    <message>
        <source>kilogram force meter</source>
        <translation>公斤力公尺</translation>
    </message>
    <message>
        <source>kilogram force foot</source>
        <translation>公斤力英尺</translation>
    </message>
    <message>
        <source>ton force foot</source>
        <translation>噸力英尺</translation>
    </message>
    <message>
        <source>ton force meter</source>
        <translation>噸力公尺</translation>
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
        <translation>卡路里 (熱化學)</translation>
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
        <translation>撒姆 (歐共體)</translation>
    </message>
    <message>
        <source>cubic meter per second</source>
        <translatorcomment>CLDR: 每秒 立方公尺</translatorcomment>
        <translation>每秒 立方公尺</translation>
    </message>
    <message>
        <source>liter per second</source>
        <translatorcomment>CLDR: 每秒 公升</translatorcomment>
        <translation>每秒 公升</translation>
    </message>
    <message>
        <source>liter per minute</source>
        <translatorcomment>CLDR: 每分鐘 公升</translatorcomment>
        <translation>每分鐘 公升</translation>
    </message>
    <message>
        <source>liter per hour</source>
        <translatorcomment>CLDR: 每小時 公升</translatorcomment>
        <translation>每小時 公升</translation>
    </message>
    <message>
        <source>gallon per second</source>
        <translatorcomment>CLDR: 每秒 加侖</translatorcomment>
        <translation>每秒 加侖</translation>
    </message>
    <message>
        <source>gallon per minute</source>
        <translatorcomment>CLDR: 每分鐘 加侖</translatorcomment>
        <translation>每分鐘 加侖</translation>
    </message>
    <message>
        <source>gallon per hour</source>
        <translatorcomment>CLDR: 每小時 加侖</translatorcomment>
        <translation>每小時 加侖</translation>
    </message>
    <message>
        <source>gallon per day</source>
        <translatorcomment>CLDR: 每天 加侖</translatorcomment>
        <translation>每天 加侖</translation>
    </message>
    <message>
        <source>milliliter per minute</source>
        <translatorcomment>CLDR: 每分鐘 毫升</translatorcomment>
        <translation>每分鐘 毫升</translation>
    </message>
    <message>
        <source>cubic centimeter per minute</source>
        <translatorcomment>CLDR: 每分鐘 立方公分</translatorcomment>
        <translation>每分鐘 立方公分</translation>
    </message>
    <message>
        <source>cubic foot per hour</source>
        <translatorcomment>CLDR: 每小時 立方英尺</translatorcomment>
        <translation>每小時 立方英尺</translation>
    </message>
    <message>
        <source>cubic foot per minute</source>
        <translatorcomment>CLDR: 每分鐘 立方英尺</translatorcomment>
        <translation>每分鐘 立方英尺</translation>
    </message>
    <message>
        <source>cubic foot per second</source>
        <translatorcomment>CLDR: 每秒 立方英尺</translatorcomment>
        <translation>每秒 立方英尺</translation>
    </message>
    <message>
        <source>cubic inch per minute</source>
        <translatorcomment>CLDR: 每分鐘 立方英寸</translatorcomment>
        <translation>每分鐘 立方英寸</translation>
    </message>
    <message>
        <source>cubic meter per hour</source>
        <translatorcomment>CLDR: 每小時 立方公尺</translatorcomment>
        <translation>每小時 立方公尺</translation>
    </message>
    <message>
        <source>cubic meter per minute</source>
        <translatorcomment>CLDR: 每分鐘 立方公尺</translatorcomment>
        <translation>每分鐘 立方公尺</translation>
    </message>
    <message>
        <source>cubic centimeter per second</source>
        <translatorcomment>CLDR: 每秒 立方公分</translatorcomment>
        <translation>每秒 立方公分</translation>
    </message>
    <message>
        <source>cubic centimeter per hour</source>
        <translatorcomment>CLDR: 每小時 立方公分</translatorcomment>
        <translation>每小時 立方公分</translation>
    </message>
    <message>
        <source>US gallon per hour</source>
        <translation>每小時美制加侖</translation>
    </message>
    <message>
        <source>US gallon per second</source>
        <translation>每秒美制加侖</translation>
    </message>
    <message>
        <source>Imp gallon per day</source>
        <translation>每天英制加侖</translation>
    </message>
    <message>
        <source>Imp gallon per hour</source>
        <translation>每小時英制加侖</translation>
    </message>
    <message>
        <source>Imp gallon per minute</source>
        <translation>每分鐘英制加侖</translation>
    </message>
    <message>
        <source>Imp gallon per second</source>
        <translation>每秒英制加侖</translation>
    </message>
    <message>
        <source>Imp million gallon per day</source>
        <translation>每天百萬英制加侖</translation>
    </message>
    <message>
        <source>liter per day</source>
        <translatorcomment>CLDR: 每天 公升</translatorcomment>
        <translation>每天 公升</translation>
    </message>
    <message>
        <source>million liter per day</source>
        <translation>每天百萬公升</translation>
    </message>
    <message>
        <source>US gallon per day</source>
        <translation>每天美制加侖</translation>
    </message>
    <message>
        <source>US million gallon per day</source>
        <translation>每天百萬美制加侖</translation>
    </message>
    <message>
        <source>cubic foot per day</source>
        <translatorcomment>CLDR: 每天 立方英尺</translatorcomment>
        <translation>每天 立方英尺</translation>
    </message>
    <message>
        <source>cubic meter per day</source>
        <translatorcomment>CLDR: 每天 立方公尺</translatorcomment>
        <translation>每天 立方公尺</translation>
    </message>
    <message>
        <source>cubic yard per minute</source>
        <translatorcomment>CLDR: 每分鐘 立方碼</translatorcomment>
        <translation>每分鐘 立方碼</translation>
    </message>
    <message>
        <source>acre foot per day</source>
        <translatorcomment>CLDR: 每天 英畝英尺</translatorcomment>
        <translation>每天 英畝英尺</translation>
    </message>
    <message>
        <source>acre foot per hour</source>
        <translatorcomment>CLDR: 每小時 英畝英尺</translatorcomment>
        <translation>每小時 英畝英尺</translation>
    </message>
    <message>
        <source>acre foot per minute</source>
        <translatorcomment>CLDR: 每分鐘 英畝英尺</translatorcomment>
        <translation>每分鐘 英畝英尺</translation>
    </message>
    <message>
        <source>acre inch per hour</source>
        <translation>每小時英畝英寸</translation>
    </message>
    <message>
        <source>acre inch per minute</source>
        <translation>每分鐘英畝英寸</translation>
    </message>
    <message>
        <source>cubic survey foot per second</source>
        <translation>每秒立方測量英尺</translation>
    </message>
    <message>
        <source>kilogram per second</source>
        <translatorcomment>CLDR: 每秒 公斤</translatorcomment>
        <translation>每秒 公斤</translation>
    </message>
    <message>
        <source>kilogram per minute</source>
        <translatorcomment>CLDR: 每分鐘 公斤</translatorcomment>
        <translation>每分鐘 公斤</translation>
    </message>
    <message>
        <source>kilogram per hour</source>
        <translatorcomment>CLDR: 每小時 公斤</translatorcomment>
        <translation>每小時 公斤</translation>
    </message>
    <message>
        <source>gram per second</source>
        <translatorcomment>CLDR: 每秒 克</translatorcomment>
        <translation>每秒 克</translation>
    </message>
    <message>
        <source>gram per minute</source>
        <translatorcomment>CLDR: 每分鐘 克</translatorcomment>
        <translation>每分鐘 克</translation>
    </message>
    <message>
        <source>gram per hour</source>
        <translatorcomment>CLDR: 每小時 克</translatorcomment>
        <translation>每小時 克</translation>
    </message>
    <message>
        <source>pound per second</source>
        <translatorcomment>CLDR: 每秒 磅</translatorcomment>
        <translation>每秒 磅</translation>
    </message>
    <message>
        <source>pound per minute</source>
        <translatorcomment>CLDR: 每分鐘 磅</translatorcomment>
        <translation>每分鐘 磅</translation>
    </message>
    <message>
        <source>pound per hour</source>
        <translatorcomment>CLDR: 每小時 磅</translatorcomment>
        <translation>每小時 磅</translation>
    </message>
    <message>
        <source>pint per stroke</source>
        <translation>每衝程品脫</translation>
    </message>
    <message>
        <source>quart per stroke</source>
        <translation>每衝程夸脫</translation>
    </message>
    <message>
        <source>newton</source>
        <translatorcomment>CLDR: 牛頓</translatorcomment>
        <translation>牛頓</translation>
    </message>
    <message>
        <source>yottanewton</source>
        <translation>佑牛頓</translation>
    </message>
    <message>
        <source>zettanewton</source>
        <translation>皆牛頓</translation>
    </message>
    <message>
        <source>exanewton</source>
        <translation>艾牛頓</translation>
    </message>
    <message>
        <source>petanewton</source>
        <translation>拍牛頓</translation>
    </message>
    <message>
        <source>teranewton</source>
        <translation>太牛頓</translation>
    </message>
    <message>
        <source>giganewton</source>
        <translation>吉牛頓</translation>
    </message>
    <message>
        <source>meganewton</source>
        <translation>兆牛頓</translation>
    </message>
    <message>
        <source>kilonewton</source>
        <translation>千牛頓</translation>
    </message>
    <message>
        <source>hectonewton</source>
        <translation>百牛頓</translation>
    </message>
    <message>
        <source>decanewton</source>
        <translation>十牛頓</translation>
    </message>
    <message>
        <source>decinewton</source>
        <translation>分牛頓</translation>
    </message>
    <message>
        <source>centinewton</source>
        <translation>釐牛頓</translation>
    </message>
    <message>
        <source>millinewton</source>
        <translation>毫牛頓</translation>
    </message>
    <message>
        <source>micronewton</source>
        <translation>微牛頓</translation>
    </message>
    <message>
        <source>nanonewton</source>
        <translation>奈牛頓</translation>
    </message>
    <message>
        <source>piconewton</source>
        <translation>皮牛頓</translation>
    </message>
    <message>
        <source>femtonewton</source>
        <translation>飛牛頓</translation>
    </message>
    <message>
        <source>attonewton</source>
        <translation>阿牛頓</translation>
    </message>
    <message>
        <source>zeptonewton</source>
        <translation>仄牛頓</translation>
    </message>
    <message>
        <source>yoctonewton</source>
        <translation>麼牛頓</translation>
    </message>
    <message>
        <source>kilopound</source>
        <translation>千磅</translation>
    </message>
    <message>
        <source>kilogram-force</source>
        <translation>公斤力</translation>
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
        <translation>噸力</translation>
    </message>
    <message>
        <source>dyne</source>
        <translation>達因</translation>
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
        <translatorcomment>CLDR: 每公尺 牛頓</translatorcomment>
        <translation>每公尺 牛頓</translation>
    </message>
    <message>
        <source>kilopound per foot</source>
        <translation>每英尺千磅</translation>
    </message>
    <message>
        <source>kilogram force per meter</source>
        <translation>每公尺公斤力</translation>
    </message>
    <message>
        <source>ton force per meter</source>
        <translation>每公尺噸力</translation>
    </message>
    <message>
        <source>pound-force per foot</source>
        <translation>每英尺磅力</translation>
    </message>
    <message>
        <source>decanewton per meter</source>
        <translation>每公尺十牛頓</translation>
    </message>
    <message>
        <source>kilonewton per meter</source>
        <translation>每公尺千牛頓</translation>
    </message>
    <message>
        <source>meganewton per meter</source>
        <translation>每公尺兆牛頓</translation>
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
        <translatorcomment>CLDR: 赫茲</translatorcomment>
        <translation>赫茲</translation>
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
        <translation>太赫茲</translation>
    </message>
    <message>
        <source>cycle per second</source>
        <translation>每秒周</translation>
    </message>
    <message>
        <source>revolution per minute</source>
        <translatorcomment>CLDR: 每分鐘 圈</translatorcomment>
        <translation>每分鐘 圈</translation>
    </message>
    <message>
        <source>flash per second</source>
        <translation>每秒閃光次數</translation>
    </message>
    <message>
        <source>flash per minute</source>
        <translation>每分鐘閃光次數</translation>
    </message>
    <message>
        <source>henry</source>
        <translation>亨利</translation>
    </message>
    <message>
        <source>nanohenry</source>
        <translation>奈亨</translation>
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
        <translation>伽馬</translation>
    </message>
    <message>
        <source>weber</source>
        <translation>韋伯</translation>
    </message>
    <message>
        <source>maxwell</source>
        <translation>麥克斯韋</translation>
    </message>
    <message>
        <source>watt</source>
        <translatorcomment>CLDR: 瓦特</translatorcomment>
        <translation>瓦特</translation>
    </message>
    <message>
        <source>horsepower (metric)</source>
        <translation>公制馬力</translation>
    </message>
    <message>
        <source>horsepower (European electrical)</source>
        <translation>馬力 (歐洲電氣)</translation>
    </message>
    <message>
        <source>horsepower (Imperial mechanical)</source>
        <translation>英制馬力 (機械)</translation>
    </message>
    <message>
        <source>horsepower (Imperial electrical)</source>
        <translation>英制馬力 (電氣)</translation>
    </message>
    <message>
        <source>kilocalorie per hour</source>
        <translatorcomment>CLDR: 每小時 千卡路里</translatorcomment>
        <translation>每小時 千卡路里</translation>
    </message>
    <message>
        <source>kilowatt</source>
        <translatorcomment>CLDR: 千瓦特</translatorcomment>
        <translation>千瓦特</translation>
    </message>
    <message>
        <source>megawatt</source>
        <translatorcomment>CLDR: 百萬瓦特</translatorcomment>
        <translation>百萬瓦特</translation>
    </message>
    <message>
        <source>microwatt</source>
        <translation>微瓦特</translation>
    </message>
    <message>
        <source>volt ampere</source>
        <translatorcomment>CLDR: 伏特⋅安培</translatorcomment>
        <translation>伏特⋅安培</translation>
    </message>
    <message>
        <source>millivolt ampere</source>
        <translation>毫伏特⋅安培</translation>
    </message>
    <message>
        <source>kilovolt ampere</source>
        <translation>千伏特⋅安培</translation>
    </message>
    <message>
        <source>megavolt ampere</source>
        <translation>兆伏特⋅安培</translation>
    </message>
    <message>
        <source>milliwatt</source>
        <translatorcomment>CLDR: 毫瓦特</translatorcomment>
        <translation>毫瓦特</translation>
    </message>
    <message>
        <source>kilogram force meter per second</source>
        <translation>每秒公斤力公尺</translation>
    </message>
    <message>
        <source>foot pound-force per second</source>
        <translation>每秒英尺磅力</translation>
    </message>
    <message>
        <source>calorie per second</source>
        <translatorcomment>CLDR: 每秒 卡路里</translatorcomment>
        <translation>每秒 卡路里</translation>
    </message>
    <message>
        <source>kilocalorie per second</source>
        <translatorcomment>CLDR: 每秒 千卡路里</translatorcomment>
        <translation>每秒 千卡路里</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per second</source>
        <translation>每秒英熱單位 (國際蒸汽表)</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per hour</source>
        <translation>每小時英熱單位 (國際蒸汽表)</translation>
    </message>
    <message>
        <source>million British thermal unit (International Table) per hour</source>
        <translation>每小時百萬英熱單位 (國際蒸汽表)</translation>
    </message>
    <message>
        <source>thousand British thermal unit (International Table) per hour</source>
        <translation>每小時千英熱單位 (國際蒸汽表)</translation>
    </message>
    <message>
        <source>ton of refrigeration</source>
        <translation>冷噸</translation>
    </message>
    <message>
        <source>watt per cubic meter</source>
        <translatorcomment>CLDR: 每立方公尺 瓦特</translatorcomment>
        <translation>每立方公尺 瓦特</translation>
    </message>
    <message>
        <source>watt per cubic foot</source>
        <translatorcomment>CLDR: 每立方英尺 瓦特</translatorcomment>
        <translation>每立方英尺 瓦特</translation>
    </message>
    <message>
        <source>British thermal unit per hour cubic foot</source>
        <translation>每小時每立方英尺英熱單位</translation>
    </message>
    <message>
        <source>watt per kilogram</source>
        <translatorcomment>CLDR: 每公斤 瓦特</translatorcomment>
        <translation>每公斤 瓦特</translation>
    </message>
    <message>
        <source>watt per square meter</source>
        <translatorcomment>CLDR: 每平方公尺 瓦特</translatorcomment>
        <translation>每平方公尺 瓦特</translation>
    </message>
    <message>
        <source>kilowatt per square meter</source>
        <translatorcomment>CLDR: 每平方公尺 千瓦特</translatorcomment>
        <translation>每平方公尺 千瓦特</translation>
    </message>
    <message>
        <source>kilowatt per square foot</source>
        <translatorcomment>CLDR: 每平方英尺 千瓦特</translatorcomment>
        <translation>每平方英尺 千瓦特</translation>
    </message>
    <message>
        <source>watt per square foot</source>
        <translatorcomment>CLDR: 每平方英尺 瓦特</translatorcomment>
        <translation>每平方英尺 瓦特</translation>
    </message>
    <message>
        <source>British thermal unit per hour square foot</source>
        <translation>每小時每平方英尺英熱單位</translation>
    </message>
    <message>
        <source>bar</source>
        <translatorcomment>CLDR: 巴</translatorcomment>
        <translation>巴</translation>
    </message>
    <message>
        <source>bar absolute</source>
        <translation>巴 (絕對壓力)</translation>
    </message>
    <message>
        <source>bar gauge</source>
        <translation>巴 (表壓)</translation>
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
        <translation>千巴</translation>
    </message>
    <message>
        <source>kilogram per square centimeter</source>
        <translatorcomment>CLDR: 每平方公分 公斤</translatorcomment>
        <translation>每平方公分 公斤</translation>
    </message>
    <message>
        <source>kilopascal</source>
        <translatorcomment>CLDR: 千帕</translatorcomment>
        <translation>千帕</translation>
    </message>
    <message>
        <source>kilopound per square inch</source>
        <translation>每平方英寸千磅</translation>
    </message>
    <message>
        <source>mega pascal</source>
        <translatorcomment>CLDR: 兆帕</translatorcomment>
        <translation>兆帕</translation>
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
        <translation>毫帕斯卡</translation>
    </message>
    <message>
        <source>pascal</source>
        <translatorcomment>CLDR: 帕斯卡</translatorcomment>
        <translation>帕斯卡</translation>
    </message>
    <message>
        <source>pound per square inch (atmosphere)</source>
        <translation>每平方英寸磅 (絕對壓力)</translation>
    </message>
    <message>
        <source>pound per square inch (gauge)</source>
        <translation>每平方英寸磅 (表壓)</translation>
    </message>
    <message>
        <source>pound per square foot</source>
        <translatorcomment>CLDR: 每平方英尺 磅</translatorcomment>
        <translation>每平方英尺 磅</translation>
    </message>
    <message>
        <source>pound per square inch</source>
        <translatorcomment>CLDR: 每平方英寸 磅</translatorcomment>
        <translation>每平方英寸 磅</translation>
    </message>
    <message>
        <source>atmosphere (standard)</source>
        <translation>標準大氣壓</translation>
    </message>
    <message>
        <source>atmosphere (metric)</source>
        <translation>工程大氣壓</translation>
    </message>
    <message>
        <source>torr</source>
        <translation>托</translation>
    </message>
    <message>
        <source>newton per square millimeter</source>
        <translation>每平方公釐牛頓</translation>
    </message>
    <message>
        <source>newton per square meter</source>
        <translatorcomment>CLDR: 每平方公尺 牛頓</translatorcomment>
        <translation>每平方公尺 牛頓</translation>
    </message>
    <message>
        <source>decanewton per square millimeter</source>
        <translation>每平方公釐十牛</translation>
    </message>
    <message>
        <source>decanewton per square meter</source>
        <translation>每平方公尺十牛頓</translation>
    </message>
    <message>
        <source>kilonewton per square meter</source>
        <translation>每平方公尺千牛頓</translation>
    </message>
    <message>
        <source>meganewton per square meter</source>
        <translation>每平方公尺兆牛頓</translation>
    </message>
    <message>
        <source>kilopound per square foot</source>
        <translation>每平方英尺千磅</translation>
    </message>
    <message>
        <source>kilogram force per square millimeter</source>
        <translation>每平方公釐公斤力</translation>
    </message>
    <message>
        <source>kilogram force per square centimeter</source>
        <translation>每平方公分公斤力</translation>
    </message>
    <message>
        <source>kilogram force per square meter</source>
        <translation>每平方公尺公斤力</translation>
    </message>
    <message>
        <source>ton force per square centimeter</source>
        <translation>每平方公分噸力</translation>
    </message>
    <message>
        <source>ton force per square meter</source>
        <translation>每平方公尺噸力</translation>
    </message>
    <message>
        <source>ton force per square foot</source>
        <translation>每平方英尺噸力</translation>
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
        <translation>吉帕斯卡</translation>
    </message>
    <message>
        <source>dyne per square centimeter</source>
        <translation>每平方公分達因</translation>
    </message>
    <message>
        <source>newton per square micrometer</source>
        <translation>每平方微米牛頓</translation>
    </message>
    <message>
        <source>meter per newton</source>
        <translatorcomment>CLDR: 每牛頓 公尺</translatorcomment>
        <translation>每牛頓 公尺</translation>
    </message>
    <message>
        <source>meter per kilonewton</source>
        <translation>每千牛頓公尺</translation>
    </message>
    <message>
        <source>foot per kip</source>
        <translation>每千磅力英尺</translation>
    </message>
    <message>
        <source>square meter per newton</source>
        <translatorcomment>CLDR: 每牛頓 平方公尺</translatorcomment>
        <translation>每牛頓 平方公尺</translation>
    </message>
    <message>
        <source>square meter per kilonewton</source>
        <translation>每千牛頓平方公尺</translation>
    </message>
    <message>
        <source>square foot per kip</source>
        <translation>每千磅力平方英尺</translation>
    </message>
    <message>
        <source>cubic meter per newton</source>
        <translatorcomment>CLDR: 每牛頓 立方公尺</translatorcomment>
        <translation>每牛頓 立方公尺</translation>
    </message>
    <message>
        <source>cubic meter per kilonewton</source>
        <translation>每千牛頓立方公尺</translation>
    </message>
    <message>
        <source>cubic foot per kip</source>
        <translation>每千磅力立方英尺</translation>
    </message>
    <message>
        <source>newton-meter per meter</source>
        <translatorcomment>CLDR: 每公尺 牛頓米</translatorcomment>
        <translation>每公尺 牛頓米</translation>
    </message>
    <message>
        <source>decanewton-meter per meter</source>
        <translation>每公尺十牛頓公尺</translation>
    </message>
    <message>
        <source>kilonewton-meter per meter</source>
        <translation>每公尺千牛頓公尺</translation>
    </message>
    <message>
        <source>meganewton-meter per meter</source>
        <translation>每公尺兆牛頓公尺</translation>
    </message>
    <message>
        <source>kip-foot per foot</source>
        <translation>每英尺千磅力英尺</translation>
    </message>
    <message>
        <source>kilogram force-meter per meter</source>
        <translation>每公尺公斤力公尺</translation>
    </message>
    <message>
        <source>ton force-meter per meter</source>
        <translation>每公尺噸力公尺</translation>
    </message>
    <message>
        <source>pound-force foot per foot</source>
        <translatorcomment>CLDR: 每英尺 磅英尺</translatorcomment>
        <translation>每英尺 磅英尺</translation>
    </message>
    <message>
        <source>ohm</source>
        <translatorcomment>CLDR: 歐姆</translatorcomment>
        <translation>歐姆</translation>
    </message>
    <message>
        <source>kilohm</source>
        <translation>千歐姆</translation>
    </message>
    <message>
        <source>gigaohm</source>
        <translation>吉歐姆</translation>
    </message>
    <message>
        <source>megohm</source>
        <translation>兆歐姆</translation>
    </message>
    <message>
        <source>microohm</source>
        <translation>微歐姆</translation>
    </message>
    <message>
        <source>milliohm</source>
        <translation>毫歐姆</translation>
    </message>
    <message>
        <source>siemens</source>
        <translation>西門子</translation>
    </message>
    <message>
        <source>mho</source>
        <translation>姆歐</translation>
    </message>
    <message>
        <source>meter per second</source>
        <translatorcomment>CLDR: 每秒 公尺</translatorcomment>
        <translation>每秒 公尺</translation>
    </message>
    <message>
        <source>millimeter per second</source>
        <translatorcomment>CLDR: 每秒 公釐</translatorcomment>
        <translation>每秒 公釐</translation>
    </message>
    <message>
        <source>centimeter per second</source>
        <translatorcomment>CLDR: 每秒 公分</translatorcomment>
        <translation>每秒 公分</translation>
    </message>
    <message>
        <source>meter per minute</source>
        <translatorcomment>CLDR: 每分鐘 公尺</translatorcomment>
        <translation>每分鐘 公尺</translation>
    </message>
    <message>
        <source>inch per second</source>
        <translatorcomment>CLDR: 每秒 英寸</translatorcomment>
        <translation>每秒 英寸</translation>
    </message>
    <message>
        <source>foot per second</source>
        <translatorcomment>CLDR: 每秒 英尺</translatorcomment>
        <translation>每秒 英尺</translation>
    </message>
    <message>
        <source>inch per minute</source>
        <translatorcomment>CLDR: 每分鐘 英寸</translatorcomment>
        <translation>每分鐘 英寸</translation>
    </message>
    <message>
        <source>foot per minute</source>
        <translatorcomment>CLDR: 每分鐘 英尺</translatorcomment>
        <translation>每分鐘 英尺</translation>
    </message>
    <message>
        <source>kilometer per hour</source>
        <translatorcomment>CLDR: 每小時 公里</translatorcomment>
        <translation>每小時 公里</translation>
    </message>
    <message>
        <source>mile per hour</source>
        <translatorcomment>CLDR: 每小時 英里</translatorcomment>
        <translation>每小時 英里</translation>
    </message>
    <message>
        <source>centimeter per minute</source>
        <translatorcomment>CLDR: 每分鐘 公分</translatorcomment>
        <translation>每分鐘 公分</translation>
    </message>
    <message>
        <source>foot per hour</source>
        <translatorcomment>CLDR: 每小時 英尺</translatorcomment>
        <translation>每小時 英尺</translation>
    </message>
    <message>
        <source>inch per hour</source>
        <translatorcomment>CLDR: 每小時 英寸</translatorcomment>
        <translation>每小時 英寸</translation>
    </message>
    <message>
        <source>kilometer per minute</source>
        <translatorcomment>CLDR: 每分鐘 公里</translatorcomment>
        <translation>每分鐘 公里</translation>
    </message>
    <message>
        <source>kilometer per second</source>
        <translatorcomment>CLDR: 每秒 公里</translatorcomment>
        <translation>每秒 公里</translation>
    </message>
    <message>
        <source>knot</source>
        <translatorcomment>CLDR: 節</translatorcomment>
        <translation>節</translation>
    </message>
    <message>
        <source>knot (UK)</source>
        <translation>節 (英國)</translation>
    </message>
    <message>
        <source>meter per hour</source>
        <translatorcomment>CLDR: 每小時 公尺</translatorcomment>
        <translation>每小時 公尺</translation>
    </message>
    <message>
        <source>mile per minute</source>
        <translatorcomment>CLDR: 每分鐘 英里</translatorcomment>
        <translation>每分鐘 英里</translation>
    </message>
    <message>
        <source>mile per second</source>
        <translatorcomment>CLDR: 每秒 英里</translatorcomment>
        <translation>每秒 英里</translation>
    </message>
    <message>
        <source>survey mile per hour</source>
        <translation>每小時測量英里</translation>
    </message>
    <message>
        <source>survey foot per second</source>
        <translation>每秒測量英尺</translation>
    </message>
    <message>
        <source>byte</source>
        <translatorcomment>CLDR: byte</translatorcomment>
        <translation>byte</translation>
    </message>
    <message>
        <source>bit</source>
        <translatorcomment>CLDR: bit</translatorcomment>
        <translation>bit</translation>
    </message>
    <message>
        <source>kilobyte</source>
        <translatorcomment>CLDR: kB</translatorcomment>
        <translation>kB</translation>
    </message>
    <message>
        <source>megabyte</source>
        <translatorcomment>CLDR: MB</translatorcomment>
        <translation>MB</translation>
    </message>
    <message>
        <source>gigabyte</source>
        <translatorcomment>CLDR: GB</translatorcomment>
        <translation>GB</translation>
    </message>
    <message>
        <source>terabyte</source>
        <translatorcomment>CLDR: TB</translatorcomment>
        <translation>TB</translation>
    </message>
    <message>
        <source>kibibyte</source>
        <translation>千二進制字節</translation>
    </message>
    <message>
        <source>mebibyte</source>
        <translation>兆二進制字節</translation>
    </message>
    <message>
        <source>gibibyte</source>
        <translation>Gib字節</translation>
    </message>
    <message>
        <source>tebibyte</source>
        <translation>太二進制字節</translation>
    </message>
    <message>
        <source>kilobit</source>
        <translatorcomment>CLDR: kb</translatorcomment>
        <translation>kb</translation>
    </message>
    <message>
        <source>megabit</source>
        <translatorcomment>CLDR: Mb</translatorcomment>
        <translation>Mb</translation>
    </message>
    <message>
        <source>gigabit</source>
        <translatorcomment>CLDR: Gb</translatorcomment>
        <translation>Gb</translation>
    </message>
    <message>
        <source>petabyte</source>
        <translatorcomment>CLDR: PB</translatorcomment>
        <translation>PB</translation>
    </message>
    <message>
        <source>pebibyte</source>
        <translation>拍二進制字節</translation>
    </message>
    <message>
        <source>exabyte</source>
        <translation>艾字節</translation>
    </message>
    <message>
        <source>exbibyte</source>
        <translation>艾二進制字節</translation>
    </message>
    <message>
        <source>zettabyte</source>
        <translation>澤字節</translation>
    </message>
    <message>
        <source>zebibyte</source>
        <translation>澤二進制字節</translation>
    </message>
    <message>
        <source>yottabyte</source>
        <translation>堯字節</translation>
    </message>
    <message>
        <source>yobibyte</source>
        <translation>堯二進制字節</translation>
    </message>
    <message>
        <source>kelvin</source>
        <translatorcomment>CLDR: 克耳文</translatorcomment>
        <translation>克耳文</translation>
    </message>
    <message>
        <source>degree Celsius</source>
        <translatorcomment>CLDR: 攝氏 度</translatorcomment>
        <translation>攝氏 度</translation>
    </message>
    <message>
        <source>degree Fahrenheit</source>
        <translatorcomment>CLDR: 華氏 度</translatorcomment>
        <translation>華氏 度</translation>
    </message>
    <message>
        <source>degree Rankine</source>
        <translation>蘭氏度</translation>
    </message>
    <message>
        <source>celsius per minute</source>
        <translatorcomment>CLDR: 每分鐘 攝氏 度</translatorcomment>
        <translation>每分鐘 攝氏 度</translation>
    </message>
    <message>
        <source>fahrenheit per minute</source>
        <translatorcomment>CLDR: 每分鐘 華氏 度</translatorcomment>
        <translation>每分鐘 華氏 度</translation>
    </message>
    <message>
        <source>second</source>
        <translatorcomment>CLDR: 秒</translatorcomment>
        <translation>秒</translation>
    </message>
    <message>
        <source>yottasecond</source>
        <translation>佑秒</translation>
    </message>
    <message>
        <source>zettasecond</source>
        <translation>皆秒</translation>
    </message>
    <message>
        <source>exasecond</source>
        <translation>艾秒</translation>
    </message>
    <message>
        <source>petasecond</source>
        <translation>拍秒</translation>
    </message>
    <message>
        <source>terasecond</source>
        <translation>太秒</translation>
    </message>
    <message>
        <source>gigasecond</source>
        <translation>吉秒</translation>
    </message>
    <message>
        <source>megasecond</source>
        <translation>兆秒</translation>
    </message>
    <message>
        <source>kilosecond</source>
        <translation>千秒</translation>
    </message>
    <message>
        <source>hectosecond</source>
        <translation>百秒</translation>
    </message>
    <message>
        <source>decasecond</source>
        <translation>十秒</translation>
    </message>
    <message>
        <source>decisecond</source>
        <translation>分秒</translation>
    </message>
    <message>
        <source>centisecond</source>
        <translation>釐秒</translation>
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
        <translatorcomment>CLDR: 奈秒</translatorcomment>
        <translation>奈秒</translation>
    </message>
    <message>
        <source>picosecond</source>
        <translation>皮秒</translation>
    </message>
    <message>
        <source>femtosecond</source>
        <translation>飛秒</translation>
    </message>
    <message>
        <source>attosecond</source>
        <translation>阿秒</translation>
    </message>
    <message>
        <source>zeptosecond</source>
        <translation>仄秒</translation>
    </message>
    <message>
        <source>yoctosecond</source>
        <translation>麼秒</translation>
    </message>
    <message>
        <source>minute</source>
        <translatorcomment>CLDR: 分鐘</translatorcomment>
        <translation>分鐘</translation>
    </message>
    <message>
        <source>hour</source>
        <translatorcomment>CLDR: 小時</translatorcomment>
        <translation>小時</translation>
    </message>
    <message>
        <source>day</source>
        <translatorcomment>CLDR: 天</translatorcomment>
        <translation>天</translation>
    </message>
    <message>
        <source>week</source>
        <translatorcomment>CLDR: 週</translatorcomment>
        <translation>週</translation>
    </message>
    <message>
        <source>fortnight</source>
        <translation>兩星期</translation>
    </message>
    <message>
        <source>month</source>
        <translatorcomment>CLDR: 個月</translatorcomment>
        <translation>個月</translation>
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
        <translation>年 (格里曆)</translation>
    </message>
    <message>
        <source>year (Julian)</source>
        <translation>年 (儒略曆)</translation>
    </message>
    <message>
        <source>sidereal year</source>
        <translation>恆星年</translation>
    </message>
    <message>
        <source>tropical year</source>
        <translation>回歸年</translation>
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
        <translatorcomment>CLDR: 個世紀</translatorcomment>
        <translation>個世紀</translation>
    </message>
    <message>
        <source>century (Julian)</source>
        <translation>世紀 (儒略曆)</translation>
    </message>
    <message>
        <source>millenium</source>
        <translation>千年</translation>
    </message>
    <message>
        <source>millenium (Gregorian)</source>
        <translation>千年 (格里曆)</translation>
    </message>
    <message>
        <source>millenium (Julian)</source>
        <translation>千年 (儒略曆)</translation>
    </message>
    <message>
        <source>newton meter (torque)</source>
        <translation>牛頓公尺 (扭矩)</translation>
    </message>
    <message>
        <source>newton centimeter (torque)</source>
        <translation>牛頓公分 (扭矩)</translation>
    </message>
    <message>
        <source>newton decameter (torque)</source>
        <translation>牛頓公丈 (扭矩)</translation>
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
        <translation>公尺公斤 (扭矩)</translation>
    </message>
    <message>
        <source>centimeter kilogram (torque)</source>
        <translation>公分公斤 (扭矩)</translation>
    </message>
    <message>
        <source>inch ounce (torque)</source>
        <translation>英寸盎司 (扭矩)</translation>
    </message>
    <message>
        <source>gram centimeter (torque)</source>
        <translation>克公分 (扭矩)</translation>
    </message>
    <message>
        <source>decanewton meter (torque)</source>
        <translation>十牛公尺 (扭矩)</translation>
    </message>
    <message>
        <source>kilonewton meter (torque)</source>
        <translation>千牛公尺 (扭矩)</translation>
    </message>
    <message>
        <source>meganewton meter (torque)</source>
        <translation>兆牛公尺 (扭矩)</translation>
    </message>
    <message>
        <source>kip foot (torque)</source>
        <translation>千磅力英尺 (扭矩)</translation>
    </message>
    <message>
        <source>kilogram force meter (torque)</source>
        <translation>公斤力公尺 (扭矩)</translation>
    </message>
    <message>
        <source>ton force meter (torque)</source>
        <translation>噸力公尺 (扭矩)</translation>
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
        <translation>釐泊</translation>
    </message>
    <message>
        <source>pascal second</source>
        <translatorcomment>CLDR: 帕斯卡⋅秒</translatorcomment>
        <translation>帕斯卡⋅秒</translation>
    </message>
    <message>
        <source>pound mass per foot second</source>
        <translation>每英尺每秒磅</translation>
    </message>
    <message>
        <source>pound mass per foot hour</source>
        <translation>每英尺每小時磅</translation>
    </message>
    <message>
        <source>stoke</source>
        <translation>斯托克斯</translation>
    </message>
    <message>
        <source>centistoke</source>
        <translation>釐斯</translation>
    </message>
    <message>
        <source>meter per second squared</source>
        <translatorcomment>CLDR: 每平方秒 公尺</translatorcomment>
        <translation>每平方秒 公尺</translation>
    </message>
    <message>
        <source>foot per second squared</source>
        <translation>每二次方秒英尺</translation>
    </message>
    <message>
        <source>survey foot per second squared</source>
        <translation>每二次方秒測量英尺</translation>
    </message>
    <message>
        <source>volt</source>
        <translatorcomment>CLDR: 伏特</translatorcomment>
        <translation>伏特</translation>
    </message>
    <message>
        <source>kilovolt</source>
        <translation>千伏特</translation>
    </message>
    <message>
        <source>microvolt</source>
        <translation>微伏特</translation>
    </message>
    <message>
        <source>millivolt</source>
        <translation>毫伏特</translation>
    </message>
    <message>
        <source>volt (electrical potential)</source>
        <translation>伏特 (電位)</translation>
    </message>
    <message>
        <source>abvolt</source>
        <translation>絕對伏特</translation>
    </message>
    <message>
        <source>statvolt</source>
        <translation>靜電伏特</translation>
    </message>
    <message>
        <source>candela</source>
        <translatorcomment>CLDR: 燭光</translatorcomment>
        <translation>燭光</translation>
    </message>
    <message>
        <source>lumen per steradian</source>
        <translation>每球面度流明</translation>
    </message>
    <message>
        <source>candlepower</source>
        <translation>國際燭光 (candlepower)</translation>
    </message>
    <message>
        <source>Lux (Illuminance)</source>
        <translation>勒克斯 (照度)</translation>
    </message>
    <message>
        <source>footcandle</source>
        <translation>英尺燭光</translation>
    </message>
    <message>
        <source>lumen second</source>
        <translatorcomment>CLDR: 流明⋅秒</translatorcomment>
        <translation>流明⋅秒</translation>
    </message>
    <message>
        <source>talbots</source>
        <translation>塔爾博特</translation>
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
        <translatorcomment>CLDR: 每平方公尺 燭光</translatorcomment>
        <translation>每平方公尺 燭光</translation>
    </message>
    <message>
        <source>foot lambert</source>
        <translation>英尺朗伯</translation>
    </message>
    <message>
        <source>candela per square foot</source>
        <translatorcomment>CLDR: 每平方英尺 燭光</translatorcomment>
        <translation>每平方英尺 燭光</translation>
    </message>
    <message>
        <source>lux (emittance)</source>
        <translation>勒克斯 (光出射度)</translation>
    </message>
    <message>
        <source>lumen per watt</source>
        <translatorcomment>CLDR: 每瓦特 流明</translatorcomment>
        <translation>每瓦特 流明</translation>
    </message>
    <message>
        <source>pascal per meter</source>
        <translatorcomment>CLDR: 每公尺 帕斯卡</translatorcomment>
        <translation>每公尺 帕斯卡</translation>
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
        <translation>每 100 英尺公釐汞柱</translation>
    </message>
    <message>
        <source>newton meter per degree</source>
        <translatorcomment>CLDR: 每度 牛頓米</translatorcomment>
        <translation>每度 牛頓米</translation>
    </message>
    <message>
        <source>kip foot per degree</source>
        <translation>每度千磅力英尺</translation>
    </message>
    <message>
        <source>kilonewton meter per degree</source>
        <translation>每度千牛頓公尺</translation>
    </message>
    <message>
        <source>newton meter per degree per meter</source>
        <translation>每度每公尺牛頓公尺</translation>
    </message>
    <message>
        <source>kip foot per degree per foot</source>
        <translation>每度每英尺千磅力英尺</translation>
    </message>
    <message>
        <source>kilonewton meter per degree per meter</source>
        <translation>每度每公尺千牛公尺</translation>
    </message>
    <message>
        <source>watt per square meter kelvin</source>
        <translation>每平方公尺每克耳文瓦特</translation>
    </message>
    <message>
        <source>british thermal unit per hour square foot fahrenheit</source>
        <translation>每小時每平方英尺每華氏度英熱單位</translation>
    </message>
    <message>
        <source>cubic meter per second square meter</source>
        <translation>每秒每平方公尺立方公尺</translation>
    </message>
    <message>
        <source>cubic foot per minute square foot</source>
        <translation>每分鐘每平方英尺立方英尺</translation>
    </message>
    <message>
        <source>liter per second square meter</source>
        <translation>每秒每平方公尺公升</translation>
    </message>
    <message>
        <source>cubic meter per second cubic meter</source>
        <translation>每秒每立方公尺立方公尺</translation>
    </message>
    <message>
        <source>cubic foot per minute cubic foot</source>
        <translation>每分鐘每立方英尺立方英尺</translation>
    </message>
    <message>
        <source>liter per second cubic meter</source>
        <translation>每秒每立方公尺公升</translation>
    </message>
    <message>
        <source>cubic meter per second watt</source>
        <translation>每秒每瓦特立方公尺</translation>
    </message>
    <message>
        <source>cubic foot per minute ton of refrigeration</source>
        <translation>每分鐘每冷噸立方英尺</translation>
    </message>
    <message>
        <source>liter per second kilowatt</source>
        <translation>每秒每千瓦公升</translation>
    </message>
    <message>
        <source>square meter per watt</source>
        <translatorcomment>CLDR: 每瓦特 平方公尺</translatorcomment>
        <translation>每瓦特 平方公尺</translation>
    </message>
    <message>
        <source>square foot per ton of refrigeration</source>
        <translation>每冷噸平方英尺</translation>
    </message>
    <message>
        <source>square meter per kilowatt</source>
        <translatorcomment>CLDR: 每千瓦特 平方公尺</translatorcomment>
        <translation>每千瓦特 平方公尺</translation>
    </message>
    <message>
        <source>square foot per thousand british thermal unit per hour</source>
        <translation>每小時每千英熱單位平方英尺</translation>
    </message>
    <message>
        <source>square second per meter kilogram</source>
        <translation>每公尺每公斤二次方秒</translation>
    </message>
    <message>
        <source>inverse kilonewton</source>
        <translation>千牛倒數</translation>
    </message>
    <message>
        <source>inverse kip</source>
        <translation>千磅力倒數</translation>
    </message>
    <message>
        <source>inverse fahrenheit</source>
        <translation>華氏度倒數</translation>
    </message>
    <message>
        <source>inverse celsius</source>
        <translation>攝氏度倒數</translation>
    </message>
    <message>
        <source>micrometer per meter celsius</source>
        <translation>每公尺每攝氏度微米</translation>
    </message>
    <message>
        <source>microinch per inch fahrenheit</source>
        <translation>每英寸每華氏度微英寸</translation>
    </message>
    <message>
        <source>oersted</source>
        <translation>奧斯特</translation>
    </message>
    <message>
        <source>Ampere per meter</source>
        <translatorcomment>CLDR: 每公尺 安培</translatorcomment>
        <translation>每公尺 安培</translation>
    </message>
    <message>
        <source>watt per meter kelvin</source>
        <translation>每公尺每克耳文瓦特</translation>
    </message>
    <message>
        <source>watt per meter celsius</source>
        <translation>每公尺每攝氏度瓦特</translation>
    </message>
    <message>
        <source>newton per second celsius</source>
        <translation>每秒每攝氏度牛頓</translation>
    </message>
    <message>
        <source>dyne per second celsius</source>
        <translation>每秒每攝氏度達因</translation>
    </message>
    <message>
        <source>BTU inch per square foot hour fahrenheit</source>
        <translation>每平方英尺每小時每華氏度英熱單位英寸</translation>
    </message>
    <message>
        <source>BTU per inch second fahrenheit</source>
        <translation>每英寸每秒每華氏度英熱單位</translation>
    </message>
    <message>
        <source>BTU per foot second fahrenheit</source>
        <translation>每英尺每秒每華氏度英熱單位</translation>
    </message>
    <message>
        <source>BTU per foot hour fahrenheit</source>
        <translation>每英尺每小時每華氏度英熱單位</translation>
    </message>
    <message>
        <source>joule per gram celsius</source>
        <translation>每克每攝氏度焦耳</translation>
    </message>
    <message>
        <source>joule per kilogram celsius</source>
        <translation>每公斤每攝氏度焦耳</translation>
    </message>
    <message>
        <source>square millimeter per square second celsius</source>
        <translation>每二次方秒每攝氏度平方公釐</translation>
    </message>
    <message>
        <source>erg per gram celsius</source>
        <translation>每克每攝氏度爾格</translation>
    </message>
    <message>
        <source>square micrometer per square second celsius</source>
        <translation>每二次方秒每攝氏度平方微米</translation>
    </message>
    <message>
        <source>BTU per pound fahrenheit</source>
        <translation>每磅每華氏度英熱單位</translation>
    </message>
    <message>
        <source>nanogram per pascal second square meter</source>
        <translation>每帕斯卡每秒每平方公尺奈克</translation>
    </message>
    <message>
        <source>grain per square foot hour inches mercury</source>
        <translation>每平方英尺每小時每英寸汞柱格令</translation>
    </message>
    <message>
        <source>ohm meter</source>
        <translatorcomment>CLDR: 歐姆⋅公尺</translatorcomment>
        <translation>歐姆⋅公尺</translation>
    </message>
    <message>
        <source>joule per gram</source>
        <translatorcomment>CLDR: 每克 焦耳</translatorcomment>
        <translation>每克 焦耳</translation>
    </message>
    <message>
        <source>joule per kilogram</source>
        <translatorcomment>CLDR: 每公斤 焦耳</translatorcomment>
        <translation>每公斤 焦耳</translation>
    </message>
    <message>
        <source>BTU per pound</source>
        <translation>每磅英熱單位</translation>
    </message>
</context>
</TS>
