<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>NumberFormat</name>
    <message>
        <source>Exponential</source>
        <translation>指数</translation>
    </message>
    <message>
        <source>exponential</source>
        <translation>指数 (小文字)</translation>
    </message>
    <message>
        <source>Fixed Point</source>
        <translation>固定小数点</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>general</source>
        <translation>一般 (小文字)</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>数値</translation>
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
        <translation>無次元</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>面積</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>体積</translation>
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
        <translation>物質量</translation>
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
        <translation>静電容量</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>ビットレート</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>密度</translation>
    </message>
    <message>
        <source>Unit Weight</source>
        <translation>単位体積重量</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>エネルギー</translation>
    </message>
    <message>
        <source>Volumetric Flow Rate</source>
        <translation>体積流量</translation>
    </message>
    <message>
        <source>Mass Flow Rate</source>
        <translation>質量流量</translation>
    </message>
    <message>
        <source>Flow Rate per Stroke</source>
        <translation>1ストロークあたりの吐出量</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>力</translation>
    </message>
    <message>
        <source>Linear Force</source>
        <translation>線荷重</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>周波数</translation>
    </message>
    <message>
        <source>Inductance</source>
        <translation>インダクタンス</translation>
    </message>
    <message>
        <source>Magnetic Flux Density</source>
        <translation>磁束密度</translation>
    </message>
    <message>
        <source>Magnetic Flux</source>
        <translation>磁束</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>仕事率</translation>
    </message>
    <message>
        <source>Power per Unit of Volume</source>
        <translation>単位体積あたりの仕事率</translation>
    </message>
    <message>
        <source>Power per Unit of Mass</source>
        <translation>単位質量あたりの仕事率</translation>
    </message>
    <message>
        <source>Power per Unit of Area</source>
        <translation>単位面積あたりの仕事率</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>圧力</translation>
    </message>
    <message>
        <source>Force Scale</source>
        <translation>力の尺度</translation>
    </message>
    <message>
        <source>Linear Force Scale</source>
        <translation>線荷重の尺度</translation>
    </message>
    <message>
        <source>Area Force Scale</source>
        <translation>面荷重の尺度</translation>
    </message>
    <message>
        <source>Linear Moment</source>
        <translation>線モーメント</translation>
    </message>
    <message>
        <source>Electrical Resistance</source>
        <translation>電気抵抗</translation>
    </message>
    <message>
        <source>Electric Conductance</source>
        <translation>コンダクタンス</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Computer Storage</source>
        <translation>記憶容量</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Temperature Rate</source>
        <translation>温度変化率</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Torque</source>
        <translation>トルク</translation>
    </message>
    <message>
        <source>Dynamic Viscosity</source>
        <translation>粘度</translation>
    </message>
    <message>
        <source>Kinematic Viscosity</source>
        <translation>動粘度</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>加速度</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>電圧</translation>
    </message>
    <message>
        <source>Electric Potential</source>
        <translation>電位</translation>
    </message>
    <message>
        <source>Luminous Intensity</source>
        <translation>光度</translation>
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
        <translation>光束</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>輝度</translation>
    </message>
    <message>
        <source>Luminous Emittance</source>
        <translation>光束発散度</translation>
    </message>
    <message>
        <source>Luminous Efficacy</source>
        <translation>発光効率</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>摩擦損失</translation>
    </message>
    <message>
        <source>Rotational Point Spring Coefficient</source>
        <translation>回転ばね定数 (点)</translation>
    </message>
    <message>
        <source>Rotational Line Spring Coefficient</source>
        <translation>回転ばね定数 (線)</translation>
    </message>
    <message>
        <source>Heat Transfer Coefficient</source>
        <translation>熱伝達率</translation>
    </message>
    <message>
        <source>Airflow Density</source>
        <translation>風量密度</translation>
    </message>
    <message>
        <source>Airflow Divided by Volume</source>
        <translation>体積あたりの風量</translation>
    </message>
    <message>
        <source>Airflow Divided by Power</source>
        <translation>出力あたりの風量</translation>
    </message>
    <message>
        <source>Area Divided by Power</source>
        <translation>出力あたりの面積</translation>
    </message>
    <message>
        <source>Moment Scale</source>
        <translation>モーメントの尺度</translation>
    </message>
    <message>
        <source>Coefficient of Thermal Expansion</source>
        <translation>熱膨張係数</translation>
    </message>
    <message>
        <source>Magnetic Field Intensity</source>
        <translation>磁界の強さ</translation>
    </message>
    <message>
        <source>Thermal Conductivity</source>
        <translation>熱伝導率</translation>
    </message>
    <message>
        <source>Specific Heat</source>
        <translation>比熱</translation>
    </message>
    <message>
        <source>Permeability</source>
        <translation>透湿率</translation>
    </message>
    <message>
        <source>Electrical Resistivity</source>
        <translation>抵抗率</translation>
    </message>
    <message>
        <source>Specific Heat of Vaporization</source>
        <translation>蒸発熱</translation>
    </message>
</context>
<context>
    <name>UnitType</name>
    <message>
        <source>unitless</source>
        <translation>無単位</translation>
    </message>
    <message>
        <source>meter</source>
        <translatorcomment>CLDR: メートル</translatorcomment>
        <translation>メートル</translation>
    </message>
    <message>
        <source>yottameter</source>
        <translatorcomment>CLDR: ヨタメートル</translatorcomment>
        <translation>ヨタメートル</translation>
    </message>
    <message>
        <source>zettameter</source>
        <translatorcomment>CLDR: ゼタメートル</translatorcomment>
        <translation>ゼタメートル</translation>
    </message>
    <message>
        <source>exameter</source>
        <translatorcomment>CLDR: エクサメートル</translatorcomment>
        <translation>エクサメートル</translation>
    </message>
    <message>
        <source>petameter</source>
        <translatorcomment>CLDR: ペタメートル</translatorcomment>
        <translation>ペタメートル</translation>
    </message>
    <message>
        <source>terameter</source>
        <translatorcomment>CLDR: テラメートル</translatorcomment>
        <translation>テラメートル</translation>
    </message>
    <message>
        <source>gigameter</source>
        <translatorcomment>CLDR: ギガメートル</translatorcomment>
        <translation>ギガメートル</translation>
    </message>
    <message>
        <source>megameter</source>
        <translatorcomment>CLDR: メガメートル</translatorcomment>
        <translation>メガメートル</translation>
    </message>
    <message>
        <source>kilometer</source>
        <translatorcomment>CLDR: キロメートル</translatorcomment>
        <translation>キロメートル</translation>
    </message>
    <message>
        <source>hectometer</source>
        <translatorcomment>CLDR: ヘクトメートル</translatorcomment>
        <translation>ヘクトメートル</translation>
    </message>
    <message>
        <source>decameter</source>
        <translatorcomment>CLDR: デカメートル</translatorcomment>
        <translation>デカメートル</translation>
    </message>
    <message>
        <source>decimeter</source>
        <translatorcomment>CLDR: デシメートル</translatorcomment>
        <translation>デシメートル</translation>
    </message>
    <message>
        <source>centimeter</source>
        <translatorcomment>CLDR: センチメートル</translatorcomment>
        <translation>センチメートル</translation>
    </message>
    <message>
        <source>millimeter</source>
        <translatorcomment>CLDR: ミリメートル</translatorcomment>
        <translation>ミリメートル</translation>
    </message>
    <message>
        <source>micrometer</source>
        <translatorcomment>CLDR: マイクロメートル</translatorcomment>
        <translation>マイクロメートル</translation>
    </message>
    <message>
        <source>nanometer</source>
        <translatorcomment>CLDR: ナノメートル</translatorcomment>
        <translation>ナノメートル</translation>
    </message>
    <message>
        <source>picometer</source>
        <translatorcomment>CLDR: ピコメートル</translatorcomment>
        <translation>ピコメートル</translation>
    </message>
    <message>
        <source>femtometer</source>
        <translatorcomment>CLDR: フェムトメートル</translatorcomment>
        <translation>フェムトメートル</translation>
    </message>
    <message>
        <source>attometer</source>
        <translatorcomment>CLDR: アトメートル</translatorcomment>
        <translation>アトメートル</translation>
    </message>
    <message>
        <source>zeptometer</source>
        <translatorcomment>CLDR: ゼプトメートル</translatorcomment>
        <translation>ゼプトメートル</translation>
    </message>
    <message>
        <source>yoctometer</source>
        <translatorcomment>CLDR: ヨクトメートル</translatorcomment>
        <translation>ヨクトメートル</translation>
    </message>
    <message>
        <source>inch</source>
        <translatorcomment>CLDR: インチ</translatorcomment>
        <translation>インチ</translation>
    </message>
    <message>
        <source>foot</source>
        <translatorcomment>CLDR: フィート</translatorcomment>
        <translation>フィート</translation>
    </message>
    <message>
        <source>foot (Benoit)</source>
        <translation>フィート (ブノワ)</translation>
    </message>
    <message>
        <source>foot (Clarke&apos;s; Cape)</source>
        <translation>フィート (クラーク、ケープ)</translation>
    </message>
    <message>
        <source>foot (Indian)</source>
        <translation>フィート (インド)</translation>
    </message>
    <message>
        <source>foot (Sear&apos;s)</source>
        <translation>フィート (シアーズ)</translation>
    </message>
    <message>
        <source>foot (U.S. Survey)</source>
        <translation>測量フィート (米国)</translation>
    </message>
    <message>
        <source>yard</source>
        <translatorcomment>CLDR: ヤード</translatorcomment>
        <translation>ヤード</translation>
    </message>
    <message>
        <source>chain</source>
        <translation>チェーン</translation>
    </message>
    <message>
        <source>chain (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>チェーン (ラムズデン、技師)</translation>
    </message>
    <message>
        <source>furlong</source>
        <translatorcomment>CLDR: ハロン</translatorcomment>
        <translation>ハロン</translation>
    </message>
    <message>
        <source>mile</source>
        <translatorcomment>CLDR: マイル</translatorcomment>
        <translation>マイル</translation>
    </message>
    <message>
        <source>geographical mile</source>
        <translation>地理マイル</translation>
    </message>
    <message>
        <source>mile (U.S. Survey)</source>
        <translation>測量マイル (米国)</translation>
    </message>
    <message>
        <source>nautical mile</source>
        <translatorcomment>CLDR: 海里</translatorcomment>
        <translation>海里</translation>
    </message>
    <message>
        <source>statute mile</source>
        <translation>法定マイル</translation>
    </message>
    <message>
        <source>nautical mile (admiralty)</source>
        <translation>海里 (英国海軍)</translation>
    </message>
    <message>
        <source>micron</source>
        <translation>ミクロン</translation>
    </message>
    <message>
        <source>microinch</source>
        <translatorcomment>CLDR: マイクロインチ</translatorcomment>
        <translation>マイクロインチ</translation>
    </message>
    <message>
        <source>angstrom</source>
        <translation>オングストローム</translation>
    </message>
    <message>
        <source>astronomical unit</source>
        <translatorcomment>CLDR: 天文単位</translatorcomment>
        <translation>天文単位</translation>
    </message>
    <message>
        <source>cable</source>
        <translation>ケーブル</translation>
    </message>
    <message>
        <source>cubit</source>
        <translation>キュビット</translation>
    </message>
    <message>
        <source>fathom</source>
        <translatorcomment>CLDR: ファゾム</translatorcomment>
        <translation>ファゾム</translation>
    </message>
    <message>
        <source>hand</source>
        <translation>ハンド</translation>
    </message>
    <message>
        <source>light-year</source>
        <translatorcomment>CLDR: 光年</translatorcomment>
        <translation>光年</translation>
    </message>
    <message>
        <source>span</source>
        <translation>スパン</translation>
    </message>
    <message>
        <source>span (cloth)</source>
        <translation>スパン (布)</translation>
    </message>
    <message>
        <source>parsec</source>
        <translatorcomment>CLDR: パーセク</translatorcomment>
        <translation>パーセク</translation>
    </message>
    <message>
        <source>nautical league</source>
        <translation>海上リーグ</translation>
    </message>
    <message>
        <source>league</source>
        <translation>リーグ</translation>
    </message>
    <message>
        <source>mil</source>
        <translation>ミル (1/1000 インチ)</translation>
    </message>
    <message>
        <source>mil (Sweden and Norway)</source>
        <translation>スカンジナビアマイル (スウェーデン、ノルウェー)</translation>
    </message>
    <message>
        <source>link</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>link (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>リンク (ラムズデン、技師)</translation>
    </message>
    <message>
        <source>pace</source>
        <translation>ペース</translation>
    </message>
    <message>
        <source>palm</source>
        <translation>パーム</translation>
    </message>
    <message>
        <source>rod</source>
        <translation>ロッド</translation>
    </message>
    <message>
        <source>rope</source>
        <translation>ロープ</translation>
    </message>
    <message>
        <source>skein</source>
        <translation>スケイン</translation>
    </message>
    <message>
        <source>caliber</source>
        <translation>口径</translation>
    </message>
    <message>
        <source>survey inch</source>
        <translation>測量インチ</translation>
    </message>
    <message>
        <source>survey yard</source>
        <translation>測量ヤード</translation>
    </message>
    <message>
        <source>survey rod</source>
        <translation>測量ロッド</translation>
    </message>
    <message>
        <source>bolt</source>
        <translation>ボルト (布)</translation>
    </message>
    <message>
        <source>square meter</source>
        <translatorcomment>CLDR: 平方メートル</translatorcomment>
        <translation>平方メートル</translation>
    </message>
    <message>
        <source>square inch</source>
        <translatorcomment>CLDR: 平方インチ</translatorcomment>
        <translation>平方インチ</translation>
    </message>
    <message>
        <source>square foot</source>
        <translatorcomment>CLDR: 平方フィート</translatorcomment>
        <translation>平方フィート</translation>
    </message>
    <message>
        <source>square yard</source>
        <translatorcomment>CLDR: 平方ヤード</translatorcomment>
        <translation>平方ヤード</translation>
    </message>
    <message>
        <source>acre</source>
        <translatorcomment>CLDR: エーカー</translatorcomment>
        <translation>エーカー</translation>
    </message>
    <message>
        <source>section</source>
        <translation>セクション</translation>
    </message>
    <message>
        <source>township</source>
        <translation>タウンシップ</translation>
    </message>
    <message>
        <source>hectare</source>
        <translatorcomment>CLDR: ヘクタール</translatorcomment>
        <translation>ヘクタール</translation>
    </message>
    <message>
        <source>square kilometer</source>
        <translatorcomment>CLDR: 平方キロメートル</translatorcomment>
        <translation>平方キロメートル</translation>
    </message>
    <message>
        <source>square mile</source>
        <translatorcomment>CLDR: 平方マイル</translatorcomment>
        <translation>平方マイル</translation>
    </message>
    <message>
        <source>square centimeter</source>
        <translatorcomment>CLDR: 平方センチメートル</translatorcomment>
        <translation>平方センチメートル</translation>
    </message>
    <message>
        <source>square millimeter</source>
        <translatorcomment>CLDR: 平方ミリメートル</translatorcomment>
        <translation>平方ミリメートル</translation>
    </message>
    <message>
        <source>circular mil</source>
        <translation>サーキュラーミル</translation>
    </message>
    <message>
        <source>kilo-circular mil</source>
        <translation>キロサーキュラーミル</translation>
    </message>
    <message>
        <source>are</source>
        <translation>アール</translation>
    </message>
    <message>
        <source>barn</source>
        <translation>バーン</translation>
    </message>
    <message>
        <source>centare</source>
        <translation>センチアール</translation>
    </message>
    <message>
        <source>square angstrom</source>
        <translation>平方オングストローム</translation>
    </message>
    <message>
        <source>square bolt</source>
        <translation>平方ボルト (布)</translation>
    </message>
    <message>
        <source>square cable</source>
        <translation>平方ケーブル</translation>
    </message>
    <message>
        <source>square caliber</source>
        <translation>平方口径</translation>
    </message>
    <message>
        <source>square cubit</source>
        <translation>平方キュビット</translation>
    </message>
    <message>
        <source>square decimeter</source>
        <translatorcomment>CLDR: 平方デシメートル</translatorcomment>
        <translation>平方デシメートル</translation>
    </message>
    <message>
        <source>square fathom</source>
        <translatorcomment>CLDR: 平方ファゾム</translatorcomment>
        <translation>平方ファゾム</translation>
    </message>
    <message>
        <source>square furlong</source>
        <translatorcomment>CLDR: 平方ハロン</translatorcomment>
        <translation>平方ハロン</translation>
    </message>
    <message>
        <source>square gigameter</source>
        <translatorcomment>CLDR: 平方ギガメートル</translatorcomment>
        <translation>平方ギガメートル</translation>
    </message>
    <message>
        <source>square hand</source>
        <translation>平方ハンド</translation>
    </message>
    <message>
        <source>square nautical league</source>
        <translation>平方海上リーグ</translation>
    </message>
    <message>
        <source>square league (statute)</source>
        <translation>平方リーグ (法定)</translation>
    </message>
    <message>
        <source>square light-year</source>
        <translatorcomment>CLDR: 平方光年</translatorcomment>
        <translation>平方光年</translation>
    </message>
    <message>
        <source>square link</source>
        <translation>平方リンク</translation>
    </message>
    <message>
        <source>square micron</source>
        <translation>平方ミクロン</translation>
    </message>
    <message>
        <source>square mile (UK nautical)</source>
        <translation>平方マイル (英国海里)</translation>
    </message>
    <message>
        <source>square mile (statute)</source>
        <translation>平方マイル (法定)</translation>
    </message>
    <message>
        <source>square millimicron</source>
        <translation>平方ミリミクロン</translation>
    </message>
    <message>
        <source>square pace</source>
        <translation>平方ペース</translation>
    </message>
    <message>
        <source>square palm</source>
        <translation>平方パーム</translation>
    </message>
    <message>
        <source>square parsec</source>
        <translatorcomment>CLDR: 平方パーセク</translatorcomment>
        <translation>平方パーセク</translation>
    </message>
    <message>
        <source>square perch</source>
        <translation>平方パーチ</translation>
    </message>
    <message>
        <source>square rope</source>
        <translation>平方ロープ</translation>
    </message>
    <message>
        <source>square skein</source>
        <translation>平方スケイン</translation>
    </message>
    <message>
        <source>square span</source>
        <translation>平方スパン</translation>
    </message>
    <message>
        <source>square survey foot</source>
        <translation>平方測量フィート</translation>
    </message>
    <message>
        <source>square chain</source>
        <translation>平方チェーン</translation>
    </message>
    <message>
        <source>square mil</source>
        <translation>平方ミル</translation>
    </message>
    <message>
        <source>square astronomical unit</source>
        <translatorcomment>CLDR: 平方天文単位</translatorcomment>
        <translation>平方天文単位</translation>
    </message>
    <message>
        <source>survey acre</source>
        <translation>測量エーカー</translation>
    </message>
    <message>
        <source>square survey yard</source>
        <translation>平方測量ヤード</translation>
    </message>
    <message>
        <source>board</source>
        <translation>ボード</translation>
    </message>
    <message>
        <source>cord</source>
        <translation>コード (面積)</translation>
    </message>
    <message>
        <source>square microinch</source>
        <translation>平方マイクロインチ</translation>
    </message>
    <message>
        <source>square micrometer</source>
        <translatorcomment>CLDR: 平方マイクロメートル</translatorcomment>
        <translation>平方マイクロメートル</translation>
    </message>
    <message>
        <source>liter</source>
        <translatorcomment>CLDR: リットル</translatorcomment>
        <translation>リットル</translation>
    </message>
    <message>
        <source>cubic centimeter</source>
        <translatorcomment>CLDR: 立方センチメートル</translatorcomment>
        <translation>立方センチメートル</translation>
    </message>
    <message>
        <source>tablespoon</source>
        <translatorcomment>CLDR: 大さじ</translatorcomment>
        <translation>大さじ</translation>
    </message>
    <message>
        <source>tablespoon (Canadian)</source>
        <translation>大さじ (カナダ)</translation>
    </message>
    <message>
        <source>tablespoon (U.S.)</source>
        <translation>大さじ (米国)</translation>
    </message>
    <message>
        <source>fluid ounce (imperial)</source>
        <translation>液量オンス (英国)</translation>
    </message>
    <message>
        <source>fluid ounce (U.S.)</source>
        <translation>液量オンス (米国)</translation>
    </message>
    <message>
        <source>cup</source>
        <translation>カップ</translation>
    </message>
    <message>
        <source>cup (Canadian)</source>
        <translation>カップ (カナダ)</translation>
    </message>
    <message>
        <source>cup (U.S.)</source>
        <translation>カップ (米国)</translation>
    </message>
    <message>
        <source>quart (imperial)</source>
        <translation>クォート (英国)</translation>
    </message>
    <message>
        <source>quart (U.S. fluid)</source>
        <translation>クォート (米国、液量)</translation>
    </message>
    <message>
        <source>quart (U.S. dry)</source>
        <translation>クォート (米国、乾量)</translation>
    </message>
    <message>
        <source>gallon (imperial)</source>
        <translation>ガロン (英国)</translation>
    </message>
    <message>
        <source>gallon (U.S. fluid; Wine)</source>
        <translation>ガロン (米国、液量、ワイン)</translation>
    </message>
    <message>
        <source>gallon (U.S. dry)</source>
        <translation>ガロン (米国、乾量)</translation>
    </message>
    <message>
        <source>beer gallon</source>
        <translation>ビールガロン</translation>
    </message>
    <message>
        <source>bushel (imperial)</source>
        <translation>ブッシェル (英国)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry level)</source>
        <translation>ブッシェル (米国、すり切り)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry heaped)</source>
        <translation>ブッシェル (米国、山盛り)</translation>
    </message>
    <message>
        <source>centiliter</source>
        <translatorcomment>CLDR: センチリットル</translatorcomment>
        <translation>センチリットル</translation>
    </message>
    <message>
        <source>cubic foot</source>
        <translatorcomment>CLDR: 立方フィート</translatorcomment>
        <translation>立方フィート</translation>
    </message>
    <message>
        <source>cubic inch</source>
        <translatorcomment>CLDR: 立方インチ</translatorcomment>
        <translation>立方インチ</translation>
    </message>
    <message>
        <source>cubic meter</source>
        <translatorcomment>CLDR: 立方メートル</translatorcomment>
        <translation>立方メートル</translation>
    </message>
    <message>
        <source>cubic yard</source>
        <translatorcomment>CLDR: 立方ヤード</translatorcomment>
        <translation>立方ヤード</translation>
    </message>
    <message>
        <source>fluid dram</source>
        <translation>液量ドラム (米国)</translation>
    </message>
    <message>
        <source>microliter</source>
        <translatorcomment>CLDR: マイクロリットル</translatorcomment>
        <translation>マイクロリットル</translation>
    </message>
    <message>
        <source>milliliter</source>
        <translatorcomment>CLDR: ミリリットル</translatorcomment>
        <translation>ミリリットル</translation>
    </message>
    <message>
        <source>pint (imperial)</source>
        <translation>パイント (英国)</translation>
    </message>
    <message>
        <source>pint (U.S. fluid)</source>
        <translation>パイント (米国、液量)</translation>
    </message>
    <message>
        <source>pint (U.S. dry)</source>
        <translation>パイント (米国、乾量)</translation>
    </message>
    <message>
        <source>teaspoon</source>
        <translatorcomment>CLDR: 小さじ</translatorcomment>
        <translation>小さじ</translation>
    </message>
    <message>
        <source>teaspoon (Canadian)</source>
        <translation>小さじ (カナダ)</translation>
    </message>
    <message>
        <source>teaspoon (U.S.)</source>
        <translation>小さじ (米国)</translation>
    </message>
    <message>
        <source>teaspoon (imperial)</source>
        <translation>小さじ (英国)</translation>
    </message>
    <message>
        <source>cubic millimeter</source>
        <translatorcomment>CLDR: 立方ミリメートル</translatorcomment>
        <translation>立方ミリメートル</translation>
    </message>
    <message>
        <source>barrel (imperial)</source>
        <translation>バレル (英国)</translation>
    </message>
    <message>
        <source>barrel (petroleum)</source>
        <translation>バレル (石油)</translation>
    </message>
    <message>
        <source>barrel (U.S. dry)</source>
        <translation>バレル (米国、乾量)</translation>
    </message>
    <message>
        <source>barrel (U.S. fluid)</source>
        <translation>バレル (米国、液量)</translation>
    </message>
    <message>
        <source>board-foot</source>
        <translation>ボードフィート</translation>
    </message>
    <message>
        <source>decistere</source>
        <translation>デシステール</translation>
    </message>
    <message>
        <source>dekaliter</source>
        <translatorcomment>CLDR: デカリットル</translatorcomment>
        <translation>デカリットル</translation>
    </message>
    <message>
        <source>dekastere</source>
        <translation>デカステール</translation>
    </message>
    <message>
        <source>dram</source>
        <translatorcomment>CLDR: ドラム</translatorcomment>
        <translation>ドラム</translation>
    </message>
    <message>
        <source>firkin</source>
        <translation>ファーキン</translation>
    </message>
    <message>
        <source>cubic angstrom</source>
        <translation>立方オングストローム</translation>
    </message>
    <message>
        <source>cubic astronomical unit</source>
        <translatorcomment>CLDR: 立方天文単位</translatorcomment>
        <translation>立方天文単位</translation>
    </message>
    <message>
        <source>cubic bolt</source>
        <translation>立方ボルト (布)</translation>
    </message>
    <message>
        <source>cubic cable</source>
        <translation>立方ケーブル</translation>
    </message>
    <message>
        <source>cubic caliber</source>
        <translation>立方口径</translation>
    </message>
    <message>
        <source>cubic chain</source>
        <translation>立方チェーン</translation>
    </message>
    <message>
        <source>cubic cubit</source>
        <translation>立方キュビット</translation>
    </message>
    <message>
        <source>cubic fathom</source>
        <translatorcomment>CLDR: 立方ファゾム</translatorcomment>
        <translation>立方ファゾム</translation>
    </message>
    <message>
        <source>cubic furlong</source>
        <translatorcomment>CLDR: 立方ハロン</translatorcomment>
        <translation>立方ハロン</translation>
    </message>
    <message>
        <source>cubic gigameter</source>
        <translatorcomment>CLDR: 立方ギガメートル</translatorcomment>
        <translation>立方ギガメートル</translation>
    </message>
    <message>
        <source>cubic hand</source>
        <translation>立方ハンド</translation>
    </message>
    <message>
        <source>cubic hectometer</source>
        <translatorcomment>CLDR: 立方ヘクトメートル</translatorcomment>
        <translation>立方ヘクトメートル</translation>
    </message>
    <message>
        <source>cubic nautical league</source>
        <translation>立方海上リーグ</translation>
    </message>
    <message>
        <source>cubic league (statute)</source>
        <translation>立方リーグ (法定)</translation>
    </message>
    <message>
        <source>cubic light-year</source>
        <translatorcomment>CLDR: 立方光年</translatorcomment>
        <translation>立方光年</translation>
    </message>
    <message>
        <source>cubic link</source>
        <translation>立方リンク</translation>
    </message>
    <message>
        <source>cubic mil</source>
        <translation>立方ミル</translation>
    </message>
    <message>
        <source>cubic mile (UK nautical)</source>
        <translation>立方マイル (英国海里)</translation>
    </message>
    <message>
        <source>cubic mile</source>
        <translatorcomment>CLDR: 立方マイル</translatorcomment>
        <translation>立方マイル</translation>
    </message>
    <message>
        <source>cubic nautical mile</source>
        <translatorcomment>CLDR: 立方海里</translatorcomment>
        <translation>立方海里</translation>
    </message>
    <message>
        <source>cubic mile (statute)</source>
        <translation>立方マイル (法定)</translation>
    </message>
    <message>
        <source>cubic millimicron</source>
        <translation>立方ミリミクロン</translation>
    </message>
    <message>
        <source>cubic pace</source>
        <translation>立方ペース</translation>
    </message>
    <message>
        <source>cubic palm</source>
        <translation>立方パーム</translation>
    </message>
    <message>
        <source>cubic parsec</source>
        <translatorcomment>CLDR: 立方パーセク</translatorcomment>
        <translation>立方パーセク</translation>
    </message>
    <message>
        <source>cubic perch</source>
        <translation>立方パーチ</translation>
    </message>
    <message>
        <source>cubic rope</source>
        <translation>立方ロープ</translation>
    </message>
    <message>
        <source>cubic skein</source>
        <translation>立方スケイン</translation>
    </message>
    <message>
        <source>cubic span</source>
        <translation>立方スパン</translation>
    </message>
    <message>
        <source>cubic survey foot</source>
        <translation>立方測量フィート</translation>
    </message>
    <message>
        <source>cubic decimeter</source>
        <translatorcomment>CLDR: 立方デシメートル</translatorcomment>
        <translation>立方デシメートル</translation>
    </message>
    <message>
        <source>tun</source>
        <translation>タン</translation>
    </message>
    <message>
        <source>peck</source>
        <translation>ペック</translation>
    </message>
    <message>
        <source>peck (U.S. dry)</source>
        <translation>ペック (米国、乾量)</translation>
    </message>
    <message>
        <source>peck (imperial)</source>
        <translation>ペック (英国)</translation>
    </message>
    <message>
        <source>minim (imperial)</source>
        <translation>ミニム (英国)</translation>
    </message>
    <message>
        <source>minim (U.S.)</source>
        <translation>ミニム (米国)</translation>
    </message>
    <message>
        <source>kiloliter</source>
        <translatorcomment>CLDR: キロリットル</translatorcomment>
        <translation>キロリットル</translation>
    </message>
    <message>
        <source>hogshead (U.S.)</source>
        <translation>ホッグズヘッド (米国)</translation>
    </message>
    <message>
        <source>hogshead (imperial)</source>
        <translation>ホッグズヘッド (英国)</translation>
    </message>
    <message>
        <source>gill (imperial)</source>
        <translation>ジル (英国)</translation>
    </message>
    <message>
        <source>gill (U.S.)</source>
        <translation>ジル (米国)</translation>
    </message>
    <message>
        <source>cubic survey yard</source>
        <translation>立方測量ヤード</translation>
    </message>
    <message>
        <source>cord-foot</source>
        <translation>コードフィート</translation>
    </message>
    <message>
        <source>cord (firewood)</source>
        <translation>コード (薪)</translation>
    </message>
    <message>
        <source>register ton</source>
        <translation>登録トン</translation>
    </message>
    <message>
        <source>acre-foot</source>
        <translatorcomment>CLDR: エーカーフィート</translatorcomment>
        <translation>エーカーフィート</translation>
    </message>
    <message>
        <source>acre-inch</source>
        <translation>エーカーインチ</translation>
    </message>
    <message>
        <source>cubic microinch</source>
        <translation>立方マイクロインチ</translation>
    </message>
    <message>
        <source>cubic micrometer</source>
        <translatorcomment>CLDR: 立方マイクロメートル</translatorcomment>
        <translation>立方マイクロメートル</translation>
    </message>
    <message>
        <source>cubic kilometer</source>
        <translatorcomment>CLDR: 立方キロメートル</translatorcomment>
        <translation>立方キロメートル</translation>
    </message>
    <message>
        <source>kilogram</source>
        <translatorcomment>CLDR: キログラム</translatorcomment>
        <translation>キログラム</translation>
    </message>
    <message>
        <source>gram</source>
        <translatorcomment>CLDR: グラム</translatorcomment>
        <translation>グラム</translation>
    </message>
    <message>
        <source>yottagram</source>
        <translatorcomment>CLDR: ヨタグラム</translatorcomment>
        <translation>ヨタグラム</translation>
    </message>
    <message>
        <source>zettagram</source>
        <translatorcomment>CLDR: ゼタグラム</translatorcomment>
        <translation>ゼタグラム</translation>
    </message>
    <message>
        <source>exagram</source>
        <translatorcomment>CLDR: エクサグラム</translatorcomment>
        <translation>エクサグラム</translation>
    </message>
    <message>
        <source>petagram</source>
        <translatorcomment>CLDR: ペタグラム</translatorcomment>
        <translation>ペタグラム</translation>
    </message>
    <message>
        <source>teragram</source>
        <translatorcomment>CLDR: テラグラム</translatorcomment>
        <translation>テラグラム</translation>
    </message>
    <message>
        <source>gigagram</source>
        <translatorcomment>CLDR: ギガグラム</translatorcomment>
        <translation>ギガグラム</translation>
    </message>
    <message>
        <source>megagram</source>
        <translatorcomment>CLDR: メガグラム</translatorcomment>
        <translation>メガグラム</translation>
    </message>
    <message>
        <source>hectogram</source>
        <translatorcomment>CLDR: ヘクトグラム</translatorcomment>
        <translation>ヘクトグラム</translation>
    </message>
    <message>
        <source>decagram</source>
        <translatorcomment>CLDR: デカグラム</translatorcomment>
        <translation>デカグラム</translation>
    </message>
    <message>
        <source>decigram</source>
        <translatorcomment>CLDR: デシグラム</translatorcomment>
        <translation>デシグラム</translation>
    </message>
    <message>
        <source>centigram</source>
        <translatorcomment>CLDR: センチグラム</translatorcomment>
        <translation>センチグラム</translation>
    </message>
    <message>
        <source>milligram</source>
        <translatorcomment>CLDR: ミリグラム</translatorcomment>
        <translation>ミリグラム</translation>
    </message>
    <message>
        <source>microgram</source>
        <translatorcomment>CLDR: マイクログラム</translatorcomment>
        <translation>マイクログラム</translation>
    </message>
    <message>
        <source>nanogram</source>
        <translatorcomment>CLDR: ナノグラム</translatorcomment>
        <translation>ナノグラム</translation>
    </message>
    <message>
        <source>picogram</source>
        <translatorcomment>CLDR: ピコグラム</translatorcomment>
        <translation>ピコグラム</translation>
    </message>
    <message>
        <source>femtogram</source>
        <translatorcomment>CLDR: フェムトグラム</translatorcomment>
        <translation>フェムトグラム</translation>
    </message>
    <message>
        <source>attogram</source>
        <translatorcomment>CLDR: アトグラム</translatorcomment>
        <translation>アトグラム</translation>
    </message>
    <message>
        <source>zeptogram</source>
        <translatorcomment>CLDR: ゼプトグラム</translatorcomment>
        <translation>ゼプトグラム</translation>
    </message>
    <message>
        <source>yoctogram</source>
        <translatorcomment>CLDR: ヨクトグラム</translatorcomment>
        <translation>ヨクトグラム</translation>
    </message>
    <message>
        <source>pound (meter)</source>
        <translation>メートルポンド</translation>
    </message>
    <message>
        <source>pound</source>
        <translatorcomment>CLDR: ポンド</translatorcomment>
        <translation>ポンド</translation>
    </message>
    <message>
        <source>pound (troy)</source>
        <translation>トロイポンド</translation>
    </message>
    <message>
        <source>ounce (avoirdupois)</source>
        <translation>オンス (常衡)</translation>
    </message>
    <message>
        <source>ounce (apothecary; troy)</source>
        <translation>オンス (薬用、トロイ)</translation>
    </message>
    <message>
        <source>stone</source>
        <translatorcomment>CLDR: ストーン</translatorcomment>
        <translation>ストーン</translation>
    </message>
    <message>
        <source>short ton</source>
        <translation>米トン</translation>
    </message>
    <message>
        <source>long ton</source>
        <translation>英トン</translation>
    </message>
    <message>
        <source>carat</source>
        <translatorcomment>CLDR: カラット</translatorcomment>
        <translation>カラット</translation>
    </message>
    <message>
        <source>carat (metric)</source>
        <translation>カラット (メートル法)</translation>
    </message>
    <message>
        <source>dram (avoirdupois)</source>
        <translation>ドラム (常衡)</translation>
    </message>
    <message>
        <source>dram (apothecary; troy)</source>
        <translation>ドラム (薬用、トロイ)</translation>
    </message>
    <message>
        <source>pennyweight</source>
        <translation>ペニーウェイト</translation>
    </message>
    <message>
        <source>tael</source>
        <translation>両 (テール)</translation>
    </message>
    <message>
        <source>tola</source>
        <translation>トラ</translation>
    </message>
    <message>
        <source>long hundredweight</source>
        <translation>ロングハンドレッドウェイト</translation>
    </message>
    <message>
        <source>short hundredweight</source>
        <translation>ショートハンドレッドウェイト</translation>
    </message>
    <message>
        <source>grain</source>
        <translatorcomment>CLDR: グレーン</translatorcomment>
        <translation>グレーン</translation>
    </message>
    <message>
        <source>pearl grain</source>
        <translation>パールグレーン</translation>
    </message>
    <message>
        <source>dalton</source>
        <translatorcomment>CLDR: ダルトン</translatorcomment>
        <translation>ダルトン</translation>
    </message>
    <message>
        <source>kilodalton</source>
        <translatorcomment>CLDR: キロダルトン</translatorcomment>
        <translation>キロダルトン</translation>
    </message>
    <message>
        <source>slug</source>
        <translation>スラグ</translation>
    </message>
    <message>
        <source>kilogram per meter</source>
        <translatorcomment>CLDR: キログラム/メートル</translatorcomment>
        <translation>キログラム/メートル</translation>
    </message>
    <message>
        <source>pound per foot</source>
        <translatorcomment>CLDR: ポンド/フィート</translatorcomment>
        <translation>ポンド/フィート</translation>
    </message>
    <message>
        <source>mole</source>
        <translatorcomment>CLDR: モル</translatorcomment>
        <translation>モル</translation>
    </message>
    <message>
        <source>yottamole</source>
        <translatorcomment>CLDR: ヨタモル</translatorcomment>
        <translation>ヨタモル</translation>
    </message>
    <message>
        <source>zettamole</source>
        <translatorcomment>CLDR: ゼタモル</translatorcomment>
        <translation>ゼタモル</translation>
    </message>
    <message>
        <source>examole</source>
        <translatorcomment>CLDR: エクサモル</translatorcomment>
        <translation>エクサモル</translation>
    </message>
    <message>
        <source>petamole</source>
        <translatorcomment>CLDR: ペタモル</translatorcomment>
        <translation>ペタモル</translation>
    </message>
    <message>
        <source>teramole</source>
        <translatorcomment>CLDR: テラモル</translatorcomment>
        <translation>テラモル</translation>
    </message>
    <message>
        <source>gigamole</source>
        <translatorcomment>CLDR: ギガモル</translatorcomment>
        <translation>ギガモル</translation>
    </message>
    <message>
        <source>megamole</source>
        <translatorcomment>CLDR: メガモル</translatorcomment>
        <translation>メガモル</translation>
    </message>
    <message>
        <source>kilomole</source>
        <translatorcomment>CLDR: キロモル</translatorcomment>
        <translation>キロモル</translation>
    </message>
    <message>
        <source>hectomole</source>
        <translatorcomment>CLDR: ヘクトモル</translatorcomment>
        <translation>ヘクトモル</translation>
    </message>
    <message>
        <source>decamole</source>
        <translatorcomment>CLDR: デカモル</translatorcomment>
        <translation>デカモル</translation>
    </message>
    <message>
        <source>decimole</source>
        <translatorcomment>CLDR: デシモル</translatorcomment>
        <translation>デシモル</translation>
    </message>
    <message>
        <source>centimole</source>
        <translatorcomment>CLDR: センチモル</translatorcomment>
        <translation>センチモル</translation>
    </message>
    <message>
        <source>millimole</source>
        <translatorcomment>CLDR: ミリモル</translatorcomment>
        <translation>ミリモル</translation>
    </message>
    <message>
        <source>micromole</source>
        <translatorcomment>CLDR: マイクロモル</translatorcomment>
        <translation>マイクロモル</translation>
    </message>
    <message>
        <source>nanomole</source>
        <translatorcomment>CLDR: ナノモル</translatorcomment>
        <translation>ナノモル</translation>
    </message>
    <message>
        <source>picomole</source>
        <translatorcomment>CLDR: ピコモル</translatorcomment>
        <translation>ピコモル</translation>
    </message>
    <message>
        <source>femtomole</source>
        <translatorcomment>CLDR: フェムトモル</translatorcomment>
        <translation>フェムトモル</translation>
    </message>
    <message>
        <source>attomole</source>
        <translatorcomment>CLDR: アトモル</translatorcomment>
        <translation>アトモル</translation>
    </message>
    <message>
        <source>zeptomole</source>
        <translatorcomment>CLDR: ゼプトモル</translatorcomment>
        <translation>ゼプトモル</translation>
    </message>
    <message>
        <source>yoctomole</source>
        <translatorcomment>CLDR: ヨクトモル</translatorcomment>
        <translation>ヨクトモル</translation>
    </message>
    <message>
        <source>radian</source>
        <translatorcomment>CLDR: ラジアン</translatorcomment>
        <translation>ラジアン</translation>
    </message>
    <message>
        <source>degree</source>
        <translatorcomment>CLDR: 度</translatorcomment>
        <translation>度</translation>
    </message>
    <message>
        <source>milliradian</source>
        <translatorcomment>CLDR: ミリラジアン</translatorcomment>
        <translation>ミリラジアン</translation>
    </message>
    <message>
        <source>grad</source>
        <translation>グラード</translation>
    </message>
    <message>
        <source>angular mil (NATO)</source>
        <translation>ミル (NATO)</translation>
    </message>
    <message>
        <source>angular mil (Sweden)</source>
        <translation>ミル (スウェーデン)</translation>
    </message>
    <message>
        <source>angular mil (USSR)</source>
        <translation>ミル (ソ連)</translation>
    </message>
    <message>
        <source>angle minute</source>
        <translation>分 (角度)</translation>
    </message>
    <message>
        <source>angle second</source>
        <translation>秒 (角度)</translation>
    </message>
    <message>
        <source>milliarc second</source>
        <translation>ミリ秒角</translation>
    </message>
    <message>
        <source>steradian</source>
        <translation>ステラジアン</translation>
    </message>
    <message>
        <source>gram per square meter</source>
        <translatorcomment>CLDR: グラム/平方メートル</translatorcomment>
        <translation>グラム/平方メートル</translation>
    </message>
    <message>
        <source>gram per square inch</source>
        <translatorcomment>CLDR: グラム/平方インチ</translatorcomment>
        <translation>グラム/平方インチ</translation>
    </message>
    <message>
        <source>nanogram per liter</source>
        <translatorcomment>CLDR: ナノグラム/リットル</translatorcomment>
        <translation>ナノグラム/リットル</translation>
    </message>
    <message>
        <source>nanogram per deciliter</source>
        <translatorcomment>CLDR: ナノグラム毎デシリットル</translatorcomment>
        <translation>ナノグラム毎デシリットル</translation>
    </message>
    <message>
        <source>nanogram per milliliter</source>
        <translatorcomment>CLDR: ナノグラム毎ミリリットル</translatorcomment>
        <translation>ナノグラム毎ミリリットル</translation>
    </message>
    <message>
        <source>nanogram per microliter</source>
        <translatorcomment>CLDR: ナノグラム毎マイクロリットル</translatorcomment>
        <translation>ナノグラム毎マイクロリットル</translation>
    </message>
    <message>
        <source>part per million</source>
        <translatorcomment>CLDR: ppm</translatorcomment>
        <translation>ppm</translation>
    </message>
    <message>
        <source>part per billion</source>
        <translation>十億分率</translation>
    </message>
    <message>
        <source>ampere</source>
        <translatorcomment>CLDR: アンペア</translatorcomment>
        <translation>アンペア</translation>
    </message>
    <message>
        <source>yottaampere</source>
        <translatorcomment>CLDR: ヨタアンペア</translatorcomment>
        <translation>ヨタアンペア</translation>
    </message>
    <message>
        <source>zettaampere</source>
        <translatorcomment>CLDR: ゼタアンペア</translatorcomment>
        <translation>ゼタアンペア</translation>
    </message>
    <message>
        <source>exaampere</source>
        <translatorcomment>CLDR: エクサアンペア</translatorcomment>
        <translation>エクサアンペア</translation>
    </message>
    <message>
        <source>petaampere</source>
        <translatorcomment>CLDR: ペタアンペア</translatorcomment>
        <translation>ペタアンペア</translation>
    </message>
    <message>
        <source>teraampere</source>
        <translatorcomment>CLDR: テラアンペア</translatorcomment>
        <translation>テラアンペア</translation>
    </message>
    <message>
        <source>gigaampere</source>
        <translatorcomment>CLDR: ギガアンペア</translatorcomment>
        <translation>ギガアンペア</translation>
    </message>
    <message>
        <source>megaampere</source>
        <translatorcomment>CLDR: メガアンペア</translatorcomment>
        <translation>メガアンペア</translation>
    </message>
    <message>
        <source>kiloampere</source>
        <translatorcomment>CLDR: キロアンペア</translatorcomment>
        <translation>キロアンペア</translation>
    </message>
    <message>
        <source>hectoampere</source>
        <translatorcomment>CLDR: ヘクトアンペア</translatorcomment>
        <translation>ヘクトアンペア</translation>
    </message>
    <message>
        <source>decaampere</source>
        <translatorcomment>CLDR: デカアンペア</translatorcomment>
        <translation>デカアンペア</translation>
    </message>
    <message>
        <source>deciampere</source>
        <translatorcomment>CLDR: デシアンペア</translatorcomment>
        <translation>デシアンペア</translation>
    </message>
    <message>
        <source>centiampere</source>
        <translatorcomment>CLDR: センチアンペア</translatorcomment>
        <translation>センチアンペア</translation>
    </message>
    <message>
        <source>milliampere</source>
        <translatorcomment>CLDR: ミリアンペア</translatorcomment>
        <translation>ミリアンペア</translation>
    </message>
    <message>
        <source>microampere</source>
        <translatorcomment>CLDR: マイクロアンペア</translatorcomment>
        <translation>マイクロアンペア</translation>
    </message>
    <message>
        <source>nanoampere</source>
        <translatorcomment>CLDR: ナノアンペア</translatorcomment>
        <translation>ナノアンペア</translation>
    </message>
    <message>
        <source>picoampere</source>
        <translatorcomment>CLDR: ピコアンペア</translatorcomment>
        <translation>ピコアンペア</translation>
    </message>
    <message>
        <source>femtoampere</source>
        <translatorcomment>CLDR: フェムトアンペア</translatorcomment>
        <translation>フェムトアンペア</translation>
    </message>
    <message>
        <source>attoampere</source>
        <translatorcomment>CLDR: アトアンペア</translatorcomment>
        <translation>アトアンペア</translation>
    </message>
    <message>
        <source>zeptoampere</source>
        <translatorcomment>CLDR: ゼプトアンペア</translatorcomment>
        <translation>ゼプトアンペア</translation>
    </message>
    <message>
        <source>yoctoampere</source>
        <translatorcomment>CLDR: ヨクトアンペア</translatorcomment>
        <translation>ヨクトアンペア</translation>
    </message>
    <message>
        <source>coulomb</source>
        <translation>クーロン</translation>
    </message>
    <message>
        <source>ampere hour</source>
        <translatorcomment>CLDR: アンペア⋅時間</translatorcomment>
        <translation>アンペア⋅時間</translation>
    </message>
    <message>
        <source>milliampere hour</source>
        <translatorcomment>CLDR: ミリアンペア⋅時間</translatorcomment>
        <translation>ミリアンペア⋅時間</translation>
    </message>
    <message>
        <source>faraday</source>
        <translation>ファラデー</translation>
    </message>
    <message>
        <source>farad</source>
        <translation>ファラド</translation>
    </message>
    <message>
        <source>yottafarad</source>
        <translation>ヨタファラド</translation>
    </message>
    <message>
        <source>zettafarad</source>
        <translation>ゼタファラド</translation>
    </message>
    <message>
        <source>exafarad</source>
        <translation>エクサファラド</translation>
    </message>
    <message>
        <source>petafarad</source>
        <translation>ペタファラド</translation>
    </message>
    <message>
        <source>terafarad</source>
        <translation>テラファラド</translation>
    </message>
    <message>
        <source>gigafarad</source>
        <translation>ギガファラド</translation>
    </message>
    <message>
        <source>megafarad</source>
        <translation>メガファラド</translation>
    </message>
    <message>
        <source>kilofarad</source>
        <translation>キロファラド</translation>
    </message>
    <message>
        <source>hectofarad</source>
        <translation>ヘクトファラド</translation>
    </message>
    <message>
        <source>decafarad</source>
        <translation>デカファラド</translation>
    </message>
    <message>
        <source>decifarad</source>
        <translation>デシファラド</translation>
    </message>
    <message>
        <source>centifarad</source>
        <translation>センチファラド</translation>
    </message>
    <message>
        <source>millifarad</source>
        <translation>ミリファラド</translation>
    </message>
    <message>
        <source>microfarad</source>
        <translation>マイクロファラド</translation>
    </message>
    <message>
        <source>nanofarad</source>
        <translation>ナノファラド</translation>
    </message>
    <message>
        <source>picofarad</source>
        <translation>ピコファラド</translation>
    </message>
    <message>
        <source>femtofarad</source>
        <translation>フェムトファラド</translation>
    </message>
    <message>
        <source>attofarad</source>
        <translation>アトファラド</translation>
    </message>
    <message>
        <source>zeptofarad</source>
        <translation>ゼプトファラド</translation>
    </message>
    <message>
        <source>yoctofarad</source>
        <translation>ヨクトファラド</translation>
    </message>
    <message>
        <source>kilopicofarad</source>
        <translation>キロピコファラド</translation>
    </message>
    <message>
        <source>baud</source>
        <translation>ボー</translation>
    </message>
    <message>
        <source>bit per second</source>
        <translatorcomment>CLDR: ビット/秒</translatorcomment>
        <translation>ビット/秒</translation>
    </message>
    <message>
        <source>byte per second</source>
        <translatorcomment>CLDR: バイト/秒</translatorcomment>
        <translation>バイト/秒</translation>
    </message>
    <message>
        <source>kilobaud</source>
        <translation>キロボー</translation>
    </message>
    <message>
        <source>kilobit per second</source>
        <translatorcomment>CLDR: キロビット/秒</translatorcomment>
        <translation>キロビット/秒</translation>
    </message>
    <message>
        <source>kilobyte per second</source>
        <translatorcomment>CLDR: キロバイト/秒</translatorcomment>
        <translation>キロバイト/秒</translation>
    </message>
    <message>
        <source>megabaud</source>
        <translation>メガボー</translation>
    </message>
    <message>
        <source>megabit per second</source>
        <translatorcomment>CLDR: メガビット/秒</translatorcomment>
        <translation>メガビット/秒</translation>
    </message>
    <message>
        <source>megabyte per second</source>
        <translatorcomment>CLDR: メガバイト/秒</translatorcomment>
        <translation>メガバイト/秒</translation>
    </message>
    <message>
        <source>kilogram per cubic meter</source>
        <translatorcomment>CLDR: キログラム/立方メートル</translatorcomment>
        <translation>キログラム/立方メートル</translation>
    </message>
    <message>
        <source>kilogram per liter</source>
        <translatorcomment>CLDR: キログラム/リットル</translatorcomment>
        <translation>キログラム/リットル</translation>
    </message>
    <message>
        <source>gram per liter</source>
        <translatorcomment>CLDR: グラム/リットル</translatorcomment>
        <translation>グラム/リットル</translation>
    </message>
    <message>
        <source>microgram per milliliter</source>
        <translatorcomment>CLDR: マイクログラム毎ミリリットル</translatorcomment>
        <translation>マイクログラム毎ミリリットル</translation>
    </message>
    <message>
        <source>milligram per milliliter</source>
        <translatorcomment>CLDR: ミリグラム毎ミリリットル</translatorcomment>
        <translation>ミリグラム毎ミリリットル</translation>
    </message>
    <message>
        <source>pound per gallon</source>
        <translatorcomment>CLDR: ポンド/ガロン</translatorcomment>
        <translation>ポンド/ガロン</translation>
    </message>
    <message>
        <source>ounce per gallon</source>
        <translatorcomment>CLDR: オンス/ガロン</translatorcomment>
        <translation>オンス/ガロン</translation>
    </message>
    <message>
        <source>pound per cubic foot</source>
        <translatorcomment>CLDR: ポンド毎立方フィート</translatorcomment>
        <translation>ポンド毎立方フィート</translation>
    </message>
    <message>
        <source>pound per cubic inch</source>
        <translatorcomment>CLDR: ポンド毎立方インチ</translatorcomment>
        <translation>ポンド毎立方インチ</translation>
    </message>
    <message>
        <source>gram per cubic centimeter</source>
        <translatorcomment>CLDR: グラム/立方センチメートル</translatorcomment>
        <translation>グラム/立方センチメートル</translation>
    </message>
    <message>
        <source>newton square second per quartic millimeter</source>
        <translation>ニュートン二乗秒毎四乗ミリメートル</translation>
    </message>
    <message>
        <source>newton per cubic meter</source>
        <translatorcomment>CLDR: ニュートン/立方メートル</translatorcomment>
        <translation>ニュートン/立方メートル</translation>
    </message>
    <message>
        <source>kilonewton per cubic meter</source>
        <translatorcomment>CLDR: キロニュートン/立方メートル</translatorcomment>
        <translation>キロニュートン/立方メートル</translation>
    </message>
    <message>
        <source>pound force per cubic foot</source>
        <translation>重量ポンド毎立方フィート</translation>
    </message>
    <message>
        <source>kip per cubic inch</source>
        <translation>キップ毎立方インチ</translation>
    </message>
    <message>
        <source>kip per cubic foot</source>
        <translation>キップ毎立方フィート</translation>
    </message>
    <message>
        <source>joule</source>
        <translatorcomment>CLDR: ジュール</translatorcomment>
        <translation>ジュール</translation>
    </message>
    <message>
        <source>calorie</source>
        <translatorcomment>CLDR: カロリー</translatorcomment>
        <translation>カロリー</translation>
    </message>
    <message>
        <source>kilocalorie</source>
        <translatorcomment>CLDR: キロカロリー</translatorcomment>
        <translation>キロカロリー</translation>
    </message>
    <message>
        <source>British thermal unit (thermochemical)</source>
        <translation>英国熱量単位 (熱化学)</translation>
    </message>
    <message>
        <source>British thermal unit (ISO)</source>
        <translation>英国熱量単位 (ISO)</translation>
    </message>
    <message>
        <source>British thermal unit (63 degree F)</source>
        <translation>英国熱量単位 (63 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (60 degree F)</source>
        <translation>英国熱量単位 (60 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (59 degree F)</source>
        <translation>英国熱量単位 (59 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (International Table)</source>
        <translation>英国熱量単位 (国際蒸気表)</translation>
    </message>
    <message>
        <source>British thermal unit (mean)</source>
        <translation>英国熱量単位 (平均)</translation>
    </message>
    <message>
        <source>British thermal unit (39 degree F)</source>
        <translation>英国熱量単位 (39 °F)</translation>
    </message>
    <message>
        <source>kiloelectronvolt</source>
        <translatorcomment>CLDR: キロ電子ボルト</translatorcomment>
        <translation>キロ電子ボルト</translation>
    </message>
    <message>
        <source>megaelectronvolt</source>
        <translatorcomment>CLDR: メガ電子ボルト</translatorcomment>
        <translation>メガ電子ボルト</translation>
    </message>
    <message>
        <source>electronvolt</source>
        <translatorcomment>CLDR: 電子ボルト</translatorcomment>
        <translation>電子ボルト</translation>
    </message>
    <message>
        <source>erg</source>
        <translation>エルグ</translation>
    </message>
    <message>
        <source>kilowatt hour</source>
        <translatorcomment>CLDR: キロワット時</translatorcomment>
        <translation>キロワット時</translation>
    </message>
    <message>
        <source>kilowatt minute</source>
        <translatorcomment>CLDR: キロワット⋅分</translatorcomment>
        <translation>キロワット⋅分</translation>
    </message>
    <message>
        <source>kilowatt second</source>
        <translatorcomment>CLDR: キロワット⋅秒</translatorcomment>
        <translation>キロワット⋅秒</translation>
    </message>
    <message>
        <source>therm (U.S.)</source>
        <translation>サーム (米国)</translation>
    </message>
    <message>
        <source>newton meter</source>
        <translatorcomment>CLDR: ニュートンメートル</translatorcomment>
        <translation>ニュートンメートル</translation>
    </message>
    <message>
        <source>decanewton meter</source>
        <translatorcomment>CLDR: デカニュートンメートル</translatorcomment>
        <translation>デカニュートンメートル</translation>
    </message>
    <message>
        <source>kilonewton meter</source>
        <translatorcomment>CLDR: キロニュートンメートル</translatorcomment>
        <translation>キロニュートンメートル</translation>
    </message>
    <message>
        <source>meganewton meter</source>
        <translatorcomment>CLDR: メガニュートンメートル</translatorcomment>
        <translation>メガニュートンメートル</translation>
    </message>
    <message>
        <source>kilogram force meter</source>
        <translation>重量キログラムメートル</translation>
    </message>
    <message>
        <source>kilogram force foot</source>
        <translation>重量キログラムフィート</translation>
    </message>
    <message>
        <source>ton force foot</source>
        <translation>重量トンフィート</translation>
    </message>
    <message>
        <source>ton force meter</source>
        <translation>重量トンメートル</translation>
    </message>
    <message>
        <source>foot kilopound</source>
        <translation>フィートキロポンド</translation>
    </message>
    <message>
        <source>foot pound force</source>
        <translation>フィート重量ポンド</translation>
    </message>
    <message>
        <source>calorie (20 degree C)</source>
        <translation>カロリー (20 °C)</translation>
    </message>
    <message>
        <source>calorie (thermochemical)</source>
        <translation>カロリー (熱化学)</translation>
    </message>
    <message>
        <source>calorie (15 degree C)</source>
        <translation>カロリー (15 °C)</translation>
    </message>
    <message>
        <source>calorie (mean)</source>
        <translation>カロリー (平均)</translation>
    </message>
    <message>
        <source>calorie (3.98 degree C)</source>
        <translation>カロリー (3.98 °C)</translation>
    </message>
    <message>
        <source>Therm (EC)</source>
        <translation>サーム (EC)</translation>
    </message>
    <message>
        <source>cubic meter per second</source>
        <translatorcomment>CLDR: 立方メートル/秒</translatorcomment>
        <translation>立方メートル/秒</translation>
    </message>
    <message>
        <source>liter per second</source>
        <translatorcomment>CLDR: リットル/秒</translatorcomment>
        <translation>リットル/秒</translation>
    </message>
    <message>
        <source>liter per minute</source>
        <translatorcomment>CLDR: リットル/分</translatorcomment>
        <translation>リットル/分</translation>
    </message>
    <message>
        <source>liter per hour</source>
        <translatorcomment>CLDR: リットル/時間</translatorcomment>
        <translation>リットル/時間</translation>
    </message>
    <message>
        <source>gallon per second</source>
        <translatorcomment>CLDR: ガロン/秒</translatorcomment>
        <translation>ガロン/秒</translation>
    </message>
    <message>
        <source>gallon per minute</source>
        <translatorcomment>CLDR: ガロン/分</translatorcomment>
        <translation>ガロン/分</translation>
    </message>
    <message>
        <source>gallon per hour</source>
        <translatorcomment>CLDR: ガロン/時間</translatorcomment>
        <translation>ガロン/時間</translation>
    </message>
    <message>
        <source>gallon per day</source>
        <translatorcomment>CLDR: ガロン/日</translatorcomment>
        <translation>ガロン/日</translation>
    </message>
    <message>
        <source>milliliter per minute</source>
        <translatorcomment>CLDR: ミリリットル/分</translatorcomment>
        <translation>ミリリットル/分</translation>
    </message>
    <message>
        <source>cubic centimeter per minute</source>
        <translatorcomment>CLDR: 立方センチメートル/分</translatorcomment>
        <translation>立方センチメートル/分</translation>
    </message>
    <message>
        <source>cubic foot per hour</source>
        <translatorcomment>CLDR: 立方フィート/時間</translatorcomment>
        <translation>立方フィート/時間</translation>
    </message>
    <message>
        <source>cubic foot per minute</source>
        <translatorcomment>CLDR: 立方フィート/分</translatorcomment>
        <translation>立方フィート/分</translation>
    </message>
    <message>
        <source>cubic foot per second</source>
        <translatorcomment>CLDR: 立方フィート/秒</translatorcomment>
        <translation>立方フィート/秒</translation>
    </message>
    <message>
        <source>cubic inch per minute</source>
        <translatorcomment>CLDR: 立方インチ/分</translatorcomment>
        <translation>立方インチ/分</translation>
    </message>
    <message>
        <source>cubic meter per hour</source>
        <translatorcomment>CLDR: 立方メートル/時間</translatorcomment>
        <translation>立方メートル/時間</translation>
    </message>
    <message>
        <source>cubic meter per minute</source>
        <translatorcomment>CLDR: 立方メートル/分</translatorcomment>
        <translation>立方メートル/分</translation>
    </message>
    <message>
        <source>cubic centimeter per second</source>
        <translatorcomment>CLDR: 立方センチメートル/秒</translatorcomment>
        <translation>立方センチメートル/秒</translation>
    </message>
    <message>
        <source>cubic centimeter per hour</source>
        <translatorcomment>CLDR: 立方センチメートル/時間</translatorcomment>
        <translation>立方センチメートル/時間</translation>
    </message>
    <message>
        <source>US gallon per hour</source>
        <translation>米ガロン毎時</translation>
    </message>
    <message>
        <source>US gallon per second</source>
        <translation>米ガロン毎秒</translation>
    </message>
    <message>
        <source>Imp gallon per day</source>
        <translation>英ガロン毎日</translation>
    </message>
    <message>
        <source>Imp gallon per hour</source>
        <translation>英ガロン毎時</translation>
    </message>
    <message>
        <source>Imp gallon per minute</source>
        <translation>英ガロン毎分</translation>
    </message>
    <message>
        <source>Imp gallon per second</source>
        <translation>英ガロン毎秒</translation>
    </message>
    <message>
        <source>Imp million gallon per day</source>
        <translation>百万英ガロン毎日</translation>
    </message>
    <message>
        <source>liter per day</source>
        <translatorcomment>CLDR: リットル/日</translatorcomment>
        <translation>リットル/日</translation>
    </message>
    <message>
        <source>million liter per day</source>
        <translation>百万リットル毎日</translation>
    </message>
    <message>
        <source>US gallon per day</source>
        <translation>米ガロン毎日</translation>
    </message>
    <message>
        <source>US million gallon per day</source>
        <translation>百万米ガロン毎日</translation>
    </message>
    <message>
        <source>cubic foot per day</source>
        <translatorcomment>CLDR: 立方フィート/日</translatorcomment>
        <translation>立方フィート/日</translation>
    </message>
    <message>
        <source>cubic meter per day</source>
        <translatorcomment>CLDR: 立方メートル/日</translatorcomment>
        <translation>立方メートル/日</translation>
    </message>
    <message>
        <source>cubic yard per minute</source>
        <translatorcomment>CLDR: 立方ヤード/分</translatorcomment>
        <translation>立方ヤード/分</translation>
    </message>
    <message>
        <source>acre foot per day</source>
        <translatorcomment>CLDR: エーカーフィート/日</translatorcomment>
        <translation>エーカーフィート/日</translation>
    </message>
    <message>
        <source>acre foot per hour</source>
        <translatorcomment>CLDR: エーカーフィート/時間</translatorcomment>
        <translation>エーカーフィート/時間</translation>
    </message>
    <message>
        <source>acre foot per minute</source>
        <translatorcomment>CLDR: エーカーフィート/分</translatorcomment>
        <translation>エーカーフィート/分</translation>
    </message>
    <message>
        <source>acre inch per hour</source>
        <translation>エーカーインチ毎時</translation>
    </message>
    <message>
        <source>acre inch per minute</source>
        <translation>エーカーインチ毎分</translation>
    </message>
    <message>
        <source>cubic survey foot per second</source>
        <translation>立方測量フィート毎秒</translation>
    </message>
    <message>
        <source>kilogram per second</source>
        <translatorcomment>CLDR: キログラム/秒</translatorcomment>
        <translation>キログラム/秒</translation>
    </message>
    <message>
        <source>kilogram per minute</source>
        <translatorcomment>CLDR: キログラム/分</translatorcomment>
        <translation>キログラム/分</translation>
    </message>
    <message>
        <source>kilogram per hour</source>
        <translatorcomment>CLDR: キログラム/時間</translatorcomment>
        <translation>キログラム/時間</translation>
    </message>
    <message>
        <source>gram per second</source>
        <translatorcomment>CLDR: グラム/秒</translatorcomment>
        <translation>グラム/秒</translation>
    </message>
    <message>
        <source>gram per minute</source>
        <translatorcomment>CLDR: グラム/分</translatorcomment>
        <translation>グラム/分</translation>
    </message>
    <message>
        <source>gram per hour</source>
        <translatorcomment>CLDR: グラム/時間</translatorcomment>
        <translation>グラム/時間</translation>
    </message>
    <message>
        <source>pound per second</source>
        <translatorcomment>CLDR: ポンド/秒</translatorcomment>
        <translation>ポンド/秒</translation>
    </message>
    <message>
        <source>pound per minute</source>
        <translatorcomment>CLDR: ポンド/分</translatorcomment>
        <translation>ポンド/分</translation>
    </message>
    <message>
        <source>pound per hour</source>
        <translatorcomment>CLDR: ポンド/時間</translatorcomment>
        <translation>ポンド/時間</translation>
    </message>
    <message>
        <source>pint per stroke</source>
        <translation>パイント毎ストローク</translation>
    </message>
    <message>
        <source>quart per stroke</source>
        <translation>クォート毎ストローク</translation>
    </message>
    <message>
        <source>newton</source>
        <translatorcomment>CLDR: ニュートン</translatorcomment>
        <translation>ニュートン</translation>
    </message>
    <message>
        <source>yottanewton</source>
        <translatorcomment>CLDR: ヨタニュートン</translatorcomment>
        <translation>ヨタニュートン</translation>
    </message>
    <message>
        <source>zettanewton</source>
        <translatorcomment>CLDR: ゼタニュートン</translatorcomment>
        <translation>ゼタニュートン</translation>
    </message>
    <message>
        <source>exanewton</source>
        <translatorcomment>CLDR: エクサニュートン</translatorcomment>
        <translation>エクサニュートン</translation>
    </message>
    <message>
        <source>petanewton</source>
        <translatorcomment>CLDR: ペタニュートン</translatorcomment>
        <translation>ペタニュートン</translation>
    </message>
    <message>
        <source>teranewton</source>
        <translatorcomment>CLDR: テラニュートン</translatorcomment>
        <translation>テラニュートン</translation>
    </message>
    <message>
        <source>giganewton</source>
        <translatorcomment>CLDR: ギガニュートン</translatorcomment>
        <translation>ギガニュートン</translation>
    </message>
    <message>
        <source>meganewton</source>
        <translatorcomment>CLDR: メガニュートン</translatorcomment>
        <translation>メガニュートン</translation>
    </message>
    <message>
        <source>kilonewton</source>
        <translatorcomment>CLDR: キロニュートン</translatorcomment>
        <translation>キロニュートン</translation>
    </message>
    <message>
        <source>hectonewton</source>
        <translatorcomment>CLDR: ヘクトニュートン</translatorcomment>
        <translation>ヘクトニュートン</translation>
    </message>
    <message>
        <source>decanewton</source>
        <translatorcomment>CLDR: デカニュートン</translatorcomment>
        <translation>デカニュートン</translation>
    </message>
    <message>
        <source>decinewton</source>
        <translatorcomment>CLDR: デシニュートン</translatorcomment>
        <translation>デシニュートン</translation>
    </message>
    <message>
        <source>centinewton</source>
        <translatorcomment>CLDR: センチニュートン</translatorcomment>
        <translation>センチニュートン</translation>
    </message>
    <message>
        <source>millinewton</source>
        <translatorcomment>CLDR: ミリニュートン</translatorcomment>
        <translation>ミリニュートン</translation>
    </message>
    <message>
        <source>micronewton</source>
        <translatorcomment>CLDR: マイクロニュートン</translatorcomment>
        <translation>マイクロニュートン</translation>
    </message>
    <message>
        <source>nanonewton</source>
        <translatorcomment>CLDR: ナノニュートン</translatorcomment>
        <translation>ナノニュートン</translation>
    </message>
    <message>
        <source>piconewton</source>
        <translatorcomment>CLDR: ピコニュートン</translatorcomment>
        <translation>ピコニュートン</translation>
    </message>
    <message>
        <source>femtonewton</source>
        <translatorcomment>CLDR: フェムトニュートン</translatorcomment>
        <translation>フェムトニュートン</translation>
    </message>
    <message>
        <source>attonewton</source>
        <translatorcomment>CLDR: アトニュートン</translatorcomment>
        <translation>アトニュートン</translation>
    </message>
    <message>
        <source>zeptonewton</source>
        <translatorcomment>CLDR: ゼプトニュートン</translatorcomment>
        <translation>ゼプトニュートン</translation>
    </message>
    <message>
        <source>yoctonewton</source>
        <translatorcomment>CLDR: ヨクトニュートン</translatorcomment>
        <translation>ヨクトニュートン</translation>
    </message>
    <message>
        <source>kilopound</source>
        <translation>キロポンド</translation>
    </message>
    <message>
        <source>kilogram-force</source>
        <translation>重量キログラム</translation>
    </message>
    <message>
        <source>pound force</source>
        <translatorcomment>CLDR: 重量ポンド</translatorcomment>
        <translation>重量ポンド</translation>
    </message>
    <message>
        <source>kip</source>
        <translation>キップ</translation>
    </message>
    <message>
        <source>ton force</source>
        <translation>重量トン</translation>
    </message>
    <message>
        <source>dyne</source>
        <translation>ダイン</translation>
    </message>
    <message>
        <source>lbforce</source>
        <translation>lbf (重量ポンド)</translation>
    </message>
    <message>
        <source>ounce force</source>
        <translation>重量オンス</translation>
    </message>
    <message>
        <source>newton per meter</source>
        <translatorcomment>CLDR: ニュートン/メートル</translatorcomment>
        <translation>ニュートン/メートル</translation>
    </message>
    <message>
        <source>kilopound per foot</source>
        <translation>キロポンド毎フィート</translation>
    </message>
    <message>
        <source>kilogram force per meter</source>
        <translation>重量キログラム毎メートル</translation>
    </message>
    <message>
        <source>ton force per meter</source>
        <translation>重量トン毎メートル</translation>
    </message>
    <message>
        <source>pound-force per foot</source>
        <translation>重量ポンド毎フィート</translation>
    </message>
    <message>
        <source>decanewton per meter</source>
        <translatorcomment>CLDR: デカニュートン/メートル</translatorcomment>
        <translation>デカニュートン/メートル</translation>
    </message>
    <message>
        <source>kilonewton per meter</source>
        <translatorcomment>CLDR: キロニュートン/メートル</translatorcomment>
        <translation>キロニュートン/メートル</translation>
    </message>
    <message>
        <source>meganewton per meter</source>
        <translatorcomment>CLDR: メガニュートン/メートル</translatorcomment>
        <translation>メガニュートン/メートル</translation>
    </message>
    <message>
        <source>kip per foot</source>
        <translation>キップ毎フィート</translation>
    </message>
    <message>
        <source>kip per inch</source>
        <translation>キップ毎インチ</translation>
    </message>
    <message>
        <source>hertz</source>
        <translatorcomment>CLDR: ヘルツ</translatorcomment>
        <translation>ヘルツ</translation>
    </message>
    <message>
        <source>kilohertz</source>
        <translatorcomment>CLDR: キロヘルツ</translatorcomment>
        <translation>キロヘルツ</translation>
    </message>
    <message>
        <source>megahertz</source>
        <translatorcomment>CLDR: メガヘルツ</translatorcomment>
        <translation>メガヘルツ</translation>
    </message>
    <message>
        <source>gigahertz</source>
        <translatorcomment>CLDR: ギガヘルツ</translatorcomment>
        <translation>ギガヘルツ</translation>
    </message>
    <message>
        <source>terahertz</source>
        <translatorcomment>CLDR: テラヘルツ</translatorcomment>
        <translation>テラヘルツ</translation>
    </message>
    <message>
        <source>cycle per second</source>
        <translation>サイクル毎秒</translation>
    </message>
    <message>
        <source>revolution per minute</source>
        <translatorcomment>CLDR: 回転/分</translatorcomment>
        <translation>回転/分</translation>
    </message>
    <message>
        <source>flash per second</source>
        <translation>閃光毎秒</translation>
    </message>
    <message>
        <source>flash per minute</source>
        <translation>閃光毎分</translation>
    </message>
    <message>
        <source>henry</source>
        <translation>ヘンリー</translation>
    </message>
    <message>
        <source>nanohenry</source>
        <translation>ナノヘンリー</translation>
    </message>
    <message>
        <source>microhenry</source>
        <translation>マイクロヘンリー</translation>
    </message>
    <message>
        <source>millihenry</source>
        <translation>ミリヘンリー</translation>
    </message>
    <message>
        <source>gauss</source>
        <translation>ガウス</translation>
    </message>
    <message>
        <source>milligauss</source>
        <translation>ミリガウス</translation>
    </message>
    <message>
        <source>tesla</source>
        <translation>テスラ</translation>
    </message>
    <message>
        <source>gamma</source>
        <translation>ガンマ</translation>
    </message>
    <message>
        <source>weber</source>
        <translation>ウェーバ</translation>
    </message>
    <message>
        <source>maxwell</source>
        <translation>マクスウェル</translation>
    </message>
    <message>
        <source>watt</source>
        <translatorcomment>CLDR: ワット</translatorcomment>
        <translation>ワット</translation>
    </message>
    <message>
        <source>horsepower (metric)</source>
        <translation>仏馬力</translation>
    </message>
    <message>
        <source>horsepower (European electrical)</source>
        <translation>馬力 (欧州電気)</translation>
    </message>
    <message>
        <source>horsepower (Imperial mechanical)</source>
        <translation>英馬力 (機械)</translation>
    </message>
    <message>
        <source>horsepower (Imperial electrical)</source>
        <translation>英馬力 (電気)</translation>
    </message>
    <message>
        <source>kilocalorie per hour</source>
        <translatorcomment>CLDR: キロカロリー/時間</translatorcomment>
        <translation>キロカロリー/時間</translation>
    </message>
    <message>
        <source>kilowatt</source>
        <translatorcomment>CLDR: キロワット</translatorcomment>
        <translation>キロワット</translation>
    </message>
    <message>
        <source>megawatt</source>
        <translatorcomment>CLDR: メガワット</translatorcomment>
        <translation>メガワット</translation>
    </message>
    <message>
        <source>microwatt</source>
        <translatorcomment>CLDR: マイクロワット</translatorcomment>
        <translation>マイクロワット</translation>
    </message>
    <message>
        <source>volt ampere</source>
        <translatorcomment>CLDR: ボルト⋅アンペア</translatorcomment>
        <translation>ボルト⋅アンペア</translation>
    </message>
    <message>
        <source>millivolt ampere</source>
        <translatorcomment>CLDR: ミリボルト⋅アンペア</translatorcomment>
        <translation>ミリボルト⋅アンペア</translation>
    </message>
    <message>
        <source>kilovolt ampere</source>
        <translatorcomment>CLDR: キロボルト⋅アンペア</translatorcomment>
        <translation>キロボルト⋅アンペア</translation>
    </message>
    <message>
        <source>megavolt ampere</source>
        <translatorcomment>CLDR: メガボルト⋅アンペア</translatorcomment>
        <translation>メガボルト⋅アンペア</translation>
    </message>
    <message>
        <source>milliwatt</source>
        <translatorcomment>CLDR: ミリワット</translatorcomment>
        <translation>ミリワット</translation>
    </message>
    <message>
        <source>kilogram force meter per second</source>
        <translation>重量キログラムメートル毎秒</translation>
    </message>
    <message>
        <source>foot pound-force per second</source>
        <translation>フィート重量ポンド毎秒</translation>
    </message>
    <message>
        <source>calorie per second</source>
        <translatorcomment>CLDR: カロリー/秒</translatorcomment>
        <translation>カロリー/秒</translation>
    </message>
    <message>
        <source>kilocalorie per second</source>
        <translatorcomment>CLDR: キロカロリー/秒</translatorcomment>
        <translation>キロカロリー/秒</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per second</source>
        <translation>英国熱量単位 (国際蒸気表) 毎秒</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per hour</source>
        <translation>英国熱量単位 (国際蒸気表) 毎時</translation>
    </message>
    <message>
        <source>million British thermal unit (International Table) per hour</source>
        <translation>百万英国熱量単位 (国際蒸気表) 毎時</translation>
    </message>
    <message>
        <source>thousand British thermal unit (International Table) per hour</source>
        <translation>千英国熱量単位 (国際蒸気表) 毎時</translation>
    </message>
    <message>
        <source>ton of refrigeration</source>
        <translation>冷凍トン</translation>
    </message>
    <message>
        <source>watt per cubic meter</source>
        <translatorcomment>CLDR: ワット/立方メートル</translatorcomment>
        <translation>ワット/立方メートル</translation>
    </message>
    <message>
        <source>watt per cubic foot</source>
        <translatorcomment>CLDR: ワット毎立方フィート</translatorcomment>
        <translation>ワット毎立方フィート</translation>
    </message>
    <message>
        <source>British thermal unit per hour cubic foot</source>
        <translation>英国熱量単位毎時毎立方フィート</translation>
    </message>
    <message>
        <source>watt per kilogram</source>
        <translatorcomment>CLDR: ワット/キログラム</translatorcomment>
        <translation>ワット/キログラム</translation>
    </message>
    <message>
        <source>watt per square meter</source>
        <translatorcomment>CLDR: ワット/平方メートル</translatorcomment>
        <translation>ワット/平方メートル</translation>
    </message>
    <message>
        <source>kilowatt per square meter</source>
        <translatorcomment>CLDR: キロワット/平方メートル</translatorcomment>
        <translation>キロワット/平方メートル</translation>
    </message>
    <message>
        <source>kilowatt per square foot</source>
        <translatorcomment>CLDR: キロワット毎平方フィート</translatorcomment>
        <translation>キロワット毎平方フィート</translation>
    </message>
    <message>
        <source>watt per square foot</source>
        <translatorcomment>CLDR: ワット毎平方フィート</translatorcomment>
        <translation>ワット毎平方フィート</translation>
    </message>
    <message>
        <source>British thermal unit per hour square foot</source>
        <translation>英国熱量単位毎時毎平方フィート</translation>
    </message>
    <message>
        <source>bar</source>
        <translatorcomment>CLDR: バール</translatorcomment>
        <translation>バール</translation>
    </message>
    <message>
        <source>bar absolute</source>
        <translation>バール (絶対圧)</translation>
    </message>
    <message>
        <source>bar gauge</source>
        <translation>バール (ゲージ圧)</translation>
    </message>
    <message>
        <source>inch of mercury</source>
        <translatorcomment>CLDR: 水銀柱インチ</translatorcomment>
        <translation>水銀柱インチ</translation>
    </message>
    <message>
        <source>inch of water</source>
        <translation>インチ水柱</translation>
    </message>
    <message>
        <source>kilobar</source>
        <translatorcomment>CLDR: キロバール</translatorcomment>
        <translation>キロバール</translation>
    </message>
    <message>
        <source>kilogram per square centimeter</source>
        <translatorcomment>CLDR: キログラム/平方センチメートル</translatorcomment>
        <translation>キログラム/平方センチメートル</translation>
    </message>
    <message>
        <source>kilopascal</source>
        <translatorcomment>CLDR: キロパスカル</translatorcomment>
        <translation>キロパスカル</translation>
    </message>
    <message>
        <source>kilopound per square inch</source>
        <translatorcomment>CLDR: キロポンド/平方インチ</translatorcomment>
        <translation>キロポンド/平方インチ</translation>
    </message>
    <message>
        <source>mega pascal</source>
        <translatorcomment>CLDR: メガパスカル</translatorcomment>
        <translation>メガパスカル</translation>
    </message>
    <message>
        <source>millibar</source>
        <translatorcomment>CLDR: ミリバール</translatorcomment>
        <translation>ミリバール</translation>
    </message>
    <message>
        <source>millimeter of mercury</source>
        <translatorcomment>CLDR: 水銀柱ミリメートル</translatorcomment>
        <translation>水銀柱ミリメートル</translation>
    </message>
    <message>
        <source>milli pascal</source>
        <translatorcomment>CLDR: ミリパスカル</translatorcomment>
        <translation>ミリパスカル</translation>
    </message>
    <message>
        <source>pascal</source>
        <translatorcomment>CLDR: パスカル</translatorcomment>
        <translation>パスカル</translation>
    </message>
    <message>
        <source>pound per square inch (atmosphere)</source>
        <translation>ポンド毎平方インチ (絶対圧)</translation>
    </message>
    <message>
        <source>pound per square inch (gauge)</source>
        <translation>ポンド毎平方インチ (ゲージ圧)</translation>
    </message>
    <message>
        <source>pound per square foot</source>
        <translatorcomment>CLDR: ポンド毎平方フィート</translatorcomment>
        <translation>ポンド毎平方フィート</translation>
    </message>
    <message>
        <source>pound per square inch</source>
        <translatorcomment>CLDR: ポンド/平方インチ</translatorcomment>
        <translation>ポンド/平方インチ</translation>
    </message>
    <message>
        <source>atmosphere (standard)</source>
        <translation>標準気圧</translation>
    </message>
    <message>
        <source>atmosphere (metric)</source>
        <translation>工学気圧</translation>
    </message>
    <message>
        <source>torr</source>
        <translation>トル</translation>
    </message>
    <message>
        <source>newton per square millimeter</source>
        <translatorcomment>CLDR: ニュートン毎平方ミリメートル</translatorcomment>
        <translation>ニュートン毎平方ミリメートル</translation>
    </message>
    <message>
        <source>newton per square meter</source>
        <translatorcomment>CLDR: ニュートン/平方メートル</translatorcomment>
        <translation>ニュートン/平方メートル</translation>
    </message>
    <message>
        <source>decanewton per square millimeter</source>
        <translatorcomment>CLDR: デカニュートン毎平方ミリメートル</translatorcomment>
        <translation>デカニュートン毎平方ミリメートル</translation>
    </message>
    <message>
        <source>decanewton per square meter</source>
        <translatorcomment>CLDR: デカニュートン/平方メートル</translatorcomment>
        <translation>デカニュートン/平方メートル</translation>
    </message>
    <message>
        <source>kilonewton per square meter</source>
        <translatorcomment>CLDR: キロニュートン/平方メートル</translatorcomment>
        <translation>キロニュートン/平方メートル</translation>
    </message>
    <message>
        <source>meganewton per square meter</source>
        <translatorcomment>CLDR: メガニュートン/平方メートル</translatorcomment>
        <translation>メガニュートン/平方メートル</translation>
    </message>
    <message>
        <source>kilopound per square foot</source>
        <translatorcomment>CLDR: キロポンド毎平方フィート</translatorcomment>
        <translation>キロポンド毎平方フィート</translation>
    </message>
    <message>
        <source>kilogram force per square millimeter</source>
        <translation>重量キログラム毎平方ミリメートル</translation>
    </message>
    <message>
        <source>kilogram force per square centimeter</source>
        <translation>重量キログラム毎平方センチメートル</translation>
    </message>
    <message>
        <source>kilogram force per square meter</source>
        <translation>重量キログラム毎平方メートル</translation>
    </message>
    <message>
        <source>ton force per square centimeter</source>
        <translation>重量トン毎平方センチメートル</translation>
    </message>
    <message>
        <source>ton force per square meter</source>
        <translation>重量トン毎平方メートル</translation>
    </message>
    <message>
        <source>ton force per square foot</source>
        <translation>重量トン毎平方フィート</translation>
    </message>
    <message>
        <source>pound force per square inch</source>
        <translatorcomment>CLDR: 重量ポンド毎平方インチ</translatorcomment>
        <translation>重量ポンド毎平方インチ</translation>
    </message>
    <message>
        <source>foot of water</source>
        <translation>フィート水柱</translation>
    </message>
    <message>
        <source>kip per square inch</source>
        <translation>キップ毎平方インチ</translation>
    </message>
    <message>
        <source>kip per square foot</source>
        <translation>キップ毎平方フィート</translation>
    </message>
    <message>
        <source>pound force per square foot</source>
        <translation>重量ポンド毎平方フィート</translation>
    </message>
    <message>
        <source>gigapascal</source>
        <translatorcomment>CLDR: ギガパスカル</translatorcomment>
        <translation>ギガパスカル</translation>
    </message>
    <message>
        <source>dyne per square centimeter</source>
        <translation>ダイン毎平方センチメートル</translation>
    </message>
    <message>
        <source>newton per square micrometer</source>
        <translatorcomment>CLDR: ニュートン毎平方マイクロメートル</translatorcomment>
        <translation>ニュートン毎平方マイクロメートル</translation>
    </message>
    <message>
        <source>meter per newton</source>
        <translatorcomment>CLDR: メートル毎ニュートン</translatorcomment>
        <translation>メートル毎ニュートン</translation>
    </message>
    <message>
        <source>meter per kilonewton</source>
        <translatorcomment>CLDR: メートル毎キロニュートン</translatorcomment>
        <translation>メートル毎キロニュートン</translation>
    </message>
    <message>
        <source>foot per kip</source>
        <translation>フィート毎キップ</translation>
    </message>
    <message>
        <source>square meter per newton</source>
        <translatorcomment>CLDR: 平方メートル毎ニュートン</translatorcomment>
        <translation>平方メートル毎ニュートン</translation>
    </message>
    <message>
        <source>square meter per kilonewton</source>
        <translatorcomment>CLDR: 平方メートル毎キロニュートン</translatorcomment>
        <translation>平方メートル毎キロニュートン</translation>
    </message>
    <message>
        <source>square foot per kip</source>
        <translation>平方フィート毎キップ</translation>
    </message>
    <message>
        <source>cubic meter per newton</source>
        <translatorcomment>CLDR: 立方メートル毎ニュートン</translatorcomment>
        <translation>立方メートル毎ニュートン</translation>
    </message>
    <message>
        <source>cubic meter per kilonewton</source>
        <translatorcomment>CLDR: 立方メートル毎キロニュートン</translatorcomment>
        <translation>立方メートル毎キロニュートン</translation>
    </message>
    <message>
        <source>cubic foot per kip</source>
        <translation>立方フィート毎キップ</translation>
    </message>
    <message>
        <source>newton-meter per meter</source>
        <translatorcomment>CLDR: ニュートンメートル/メートル</translatorcomment>
        <translation>ニュートンメートル/メートル</translation>
    </message>
    <message>
        <source>decanewton-meter per meter</source>
        <translatorcomment>CLDR: デカニュートンメートル/メートル</translatorcomment>
        <translation>デカニュートンメートル/メートル</translation>
    </message>
    <message>
        <source>kilonewton-meter per meter</source>
        <translatorcomment>CLDR: キロニュートンメートル/メートル</translatorcomment>
        <translation>キロニュートンメートル/メートル</translation>
    </message>
    <message>
        <source>meganewton-meter per meter</source>
        <translatorcomment>CLDR: メガニュートンメートル/メートル</translatorcomment>
        <translation>メガニュートンメートル/メートル</translation>
    </message>
    <message>
        <source>kip-foot per foot</source>
        <translation>キップフィート毎フィート</translation>
    </message>
    <message>
        <source>kilogram force-meter per meter</source>
        <translation>重量キログラムメートル毎メートル</translation>
    </message>
    <message>
        <source>ton force-meter per meter</source>
        <translation>重量トンメートル毎メートル</translation>
    </message>
    <message>
        <source>pound-force foot per foot</source>
        <translatorcomment>CLDR: ポンドフィート/フィート</translatorcomment>
        <translation>ポンドフィート/フィート</translation>
    </message>
    <message>
        <source>ohm</source>
        <translatorcomment>CLDR: オーム</translatorcomment>
        <translation>オーム</translation>
    </message>
    <message>
        <source>kilohm</source>
        <translatorcomment>CLDR: キロオーム</translatorcomment>
        <translation>キロオーム</translation>
    </message>
    <message>
        <source>gigaohm</source>
        <translatorcomment>CLDR: ギガオーム</translatorcomment>
        <translation>ギガオーム</translation>
    </message>
    <message>
        <source>megohm</source>
        <translatorcomment>CLDR: メガオーム</translatorcomment>
        <translation>メガオーム</translation>
    </message>
    <message>
        <source>microohm</source>
        <translatorcomment>CLDR: マイクロオーム</translatorcomment>
        <translation>マイクロオーム</translation>
    </message>
    <message>
        <source>milliohm</source>
        <translatorcomment>CLDR: ミリオーム</translatorcomment>
        <translation>ミリオーム</translation>
    </message>
    <message>
        <source>siemens</source>
        <translation>ジーメンス</translation>
    </message>
    <message>
        <source>mho</source>
        <translation>モー</translation>
    </message>
    <message>
        <source>meter per second</source>
        <translatorcomment>CLDR: 秒速 メートル</translatorcomment>
        <translation>秒速 メートル</translation>
    </message>
    <message>
        <source>millimeter per second</source>
        <translatorcomment>CLDR: ミリメートル/秒</translatorcomment>
        <translation>ミリメートル/秒</translation>
    </message>
    <message>
        <source>centimeter per second</source>
        <translatorcomment>CLDR: センチメートル/秒</translatorcomment>
        <translation>センチメートル/秒</translation>
    </message>
    <message>
        <source>meter per minute</source>
        <translatorcomment>CLDR: メートル/分</translatorcomment>
        <translation>メートル/分</translation>
    </message>
    <message>
        <source>inch per second</source>
        <translatorcomment>CLDR: インチ/秒</translatorcomment>
        <translation>インチ/秒</translation>
    </message>
    <message>
        <source>foot per second</source>
        <translatorcomment>CLDR: フィート/秒</translatorcomment>
        <translation>フィート/秒</translation>
    </message>
    <message>
        <source>inch per minute</source>
        <translatorcomment>CLDR: インチ/分</translatorcomment>
        <translation>インチ/分</translation>
    </message>
    <message>
        <source>foot per minute</source>
        <translatorcomment>CLDR: フィート/分</translatorcomment>
        <translation>フィート/分</translation>
    </message>
    <message>
        <source>kilometer per hour</source>
        <translatorcomment>CLDR: 時速 キロメートル</translatorcomment>
        <translation>時速 キロメートル</translation>
    </message>
    <message>
        <source>mile per hour</source>
        <translatorcomment>CLDR: 時速 マイル</translatorcomment>
        <translation>時速 マイル</translation>
    </message>
    <message>
        <source>centimeter per minute</source>
        <translatorcomment>CLDR: センチメートル/分</translatorcomment>
        <translation>センチメートル/分</translation>
    </message>
    <message>
        <source>foot per hour</source>
        <translatorcomment>CLDR: フィート/時間</translatorcomment>
        <translation>フィート/時間</translation>
    </message>
    <message>
        <source>inch per hour</source>
        <translatorcomment>CLDR: インチ/時間</translatorcomment>
        <translation>インチ/時間</translation>
    </message>
    <message>
        <source>kilometer per minute</source>
        <translatorcomment>CLDR: キロメートル/分</translatorcomment>
        <translation>キロメートル/分</translation>
    </message>
    <message>
        <source>kilometer per second</source>
        <translatorcomment>CLDR: キロメートル/秒</translatorcomment>
        <translation>キロメートル/秒</translation>
    </message>
    <message>
        <source>knot</source>
        <translatorcomment>CLDR: ノット</translatorcomment>
        <translation>ノット</translation>
    </message>
    <message>
        <source>knot (UK)</source>
        <translation>ノット (英国)</translation>
    </message>
    <message>
        <source>meter per hour</source>
        <translatorcomment>CLDR: メートル/時間</translatorcomment>
        <translation>メートル/時間</translation>
    </message>
    <message>
        <source>mile per minute</source>
        <translatorcomment>CLDR: マイル/分</translatorcomment>
        <translation>マイル/分</translation>
    </message>
    <message>
        <source>mile per second</source>
        <translatorcomment>CLDR: マイル/秒</translatorcomment>
        <translation>マイル/秒</translation>
    </message>
    <message>
        <source>survey mile per hour</source>
        <translation>測量マイル毎時</translation>
    </message>
    <message>
        <source>survey foot per second</source>
        <translation>測量フィート毎秒</translation>
    </message>
    <message>
        <source>byte</source>
        <translatorcomment>CLDR: バイト</translatorcomment>
        <translation>バイト</translation>
    </message>
    <message>
        <source>bit</source>
        <translatorcomment>CLDR: ビット</translatorcomment>
        <translation>ビット</translation>
    </message>
    <message>
        <source>kilobyte</source>
        <translatorcomment>CLDR: キロバイト</translatorcomment>
        <translation>キロバイト</translation>
    </message>
    <message>
        <source>megabyte</source>
        <translatorcomment>CLDR: メガバイト</translatorcomment>
        <translation>メガバイト</translation>
    </message>
    <message>
        <source>gigabyte</source>
        <translatorcomment>CLDR: ギガバイト</translatorcomment>
        <translation>ギガバイト</translation>
    </message>
    <message>
        <source>terabyte</source>
        <translatorcomment>CLDR: テラバイト</translatorcomment>
        <translation>テラバイト</translation>
    </message>
    <message>
        <source>kibibyte</source>
        <translatorcomment>CLDR: キビバイト</translatorcomment>
        <translation>キビバイト</translation>
    </message>
    <message>
        <source>mebibyte</source>
        <translatorcomment>CLDR: メビバイト</translatorcomment>
        <translation>メビバイト</translation>
    </message>
    <message>
        <source>gibibyte</source>
        <translatorcomment>CLDR: ギビバイト</translatorcomment>
        <translation>ギビバイト</translation>
    </message>
    <message>
        <source>tebibyte</source>
        <translatorcomment>CLDR: テビバイト</translatorcomment>
        <translation>テビバイト</translation>
    </message>
    <message>
        <source>kilobit</source>
        <translatorcomment>CLDR: キロビット</translatorcomment>
        <translation>キロビット</translation>
    </message>
    <message>
        <source>megabit</source>
        <translatorcomment>CLDR: メガビット</translatorcomment>
        <translation>メガビット</translation>
    </message>
    <message>
        <source>gigabit</source>
        <translatorcomment>CLDR: ギガビット</translatorcomment>
        <translation>ギガビット</translation>
    </message>
    <message>
        <source>petabyte</source>
        <translatorcomment>CLDR: ペタバイト</translatorcomment>
        <translation>ペタバイト</translation>
    </message>
    <message>
        <source>pebibyte</source>
        <translatorcomment>CLDR: ペビバイト</translatorcomment>
        <translation>ペビバイト</translation>
    </message>
    <message>
        <source>exabyte</source>
        <translatorcomment>CLDR: エクサバイト</translatorcomment>
        <translation>エクサバイト</translation>
    </message>
    <message>
        <source>exbibyte</source>
        <translatorcomment>CLDR: エクスビバイト</translatorcomment>
        <translation>エクスビバイト</translation>
    </message>
    <message>
        <source>zettabyte</source>
        <translatorcomment>CLDR: ゼタバイト</translatorcomment>
        <translation>ゼタバイト</translation>
    </message>
    <message>
        <source>zebibyte</source>
        <translatorcomment>CLDR: ゼビバイト</translatorcomment>
        <translation>ゼビバイト</translation>
    </message>
    <message>
        <source>yottabyte</source>
        <translatorcomment>CLDR: ヨタバイト</translatorcomment>
        <translation>ヨタバイト</translation>
    </message>
    <message>
        <source>yobibyte</source>
        <translatorcomment>CLDR: ヨビバイト</translatorcomment>
        <translation>ヨビバイト</translation>
    </message>
    <message>
        <source>kelvin</source>
        <translatorcomment>CLDR: ケルビン</translatorcomment>
        <translation>ケルビン</translation>
    </message>
    <message>
        <source>degree Celsius</source>
        <translatorcomment>CLDR: 摂氏 度</translatorcomment>
        <translation>摂氏 度</translation>
    </message>
    <message>
        <source>degree Fahrenheit</source>
        <translatorcomment>CLDR: 華氏 度</translatorcomment>
        <translation>華氏 度</translation>
    </message>
    <message>
        <source>degree Rankine</source>
        <translation>ランキン度</translation>
    </message>
    <message>
        <source>celsius per minute</source>
        <translatorcomment>CLDR: 摂氏 度/分</translatorcomment>
        <translation>摂氏 度/分</translation>
    </message>
    <message>
        <source>fahrenheit per minute</source>
        <translatorcomment>CLDR: 華氏 度/分</translatorcomment>
        <translation>華氏 度/分</translation>
    </message>
    <message>
        <source>second</source>
        <translatorcomment>CLDR: 秒</translatorcomment>
        <translation>秒</translation>
    </message>
    <message>
        <source>yottasecond</source>
        <translatorcomment>CLDR: ヨタ秒</translatorcomment>
        <translation>ヨタ秒</translation>
    </message>
    <message>
        <source>zettasecond</source>
        <translatorcomment>CLDR: ゼタ秒</translatorcomment>
        <translation>ゼタ秒</translation>
    </message>
    <message>
        <source>exasecond</source>
        <translatorcomment>CLDR: エクサ秒</translatorcomment>
        <translation>エクサ秒</translation>
    </message>
    <message>
        <source>petasecond</source>
        <translatorcomment>CLDR: ペタ秒</translatorcomment>
        <translation>ペタ秒</translation>
    </message>
    <message>
        <source>terasecond</source>
        <translatorcomment>CLDR: テラ秒</translatorcomment>
        <translation>テラ秒</translation>
    </message>
    <message>
        <source>gigasecond</source>
        <translatorcomment>CLDR: ギガ秒</translatorcomment>
        <translation>ギガ秒</translation>
    </message>
    <message>
        <source>megasecond</source>
        <translatorcomment>CLDR: メガ秒</translatorcomment>
        <translation>メガ秒</translation>
    </message>
    <message>
        <source>kilosecond</source>
        <translatorcomment>CLDR: キロ秒</translatorcomment>
        <translation>キロ秒</translation>
    </message>
    <message>
        <source>hectosecond</source>
        <translatorcomment>CLDR: ヘクト秒</translatorcomment>
        <translation>ヘクト秒</translation>
    </message>
    <message>
        <source>decasecond</source>
        <translatorcomment>CLDR: デカ秒</translatorcomment>
        <translation>デカ秒</translation>
    </message>
    <message>
        <source>decisecond</source>
        <translatorcomment>CLDR: デシ秒</translatorcomment>
        <translation>デシ秒</translation>
    </message>
    <message>
        <source>centisecond</source>
        <translatorcomment>CLDR: センチ秒</translatorcomment>
        <translation>センチ秒</translation>
    </message>
    <message>
        <source>millisecond</source>
        <translatorcomment>CLDR: ミリ秒</translatorcomment>
        <translation>ミリ秒</translation>
    </message>
    <message>
        <source>microsecond</source>
        <translatorcomment>CLDR: マイクロ秒</translatorcomment>
        <translation>マイクロ秒</translation>
    </message>
    <message>
        <source>nanosecond</source>
        <translatorcomment>CLDR: ナノ秒</translatorcomment>
        <translation>ナノ秒</translation>
    </message>
    <message>
        <source>picosecond</source>
        <translatorcomment>CLDR: ピコ秒</translatorcomment>
        <translation>ピコ秒</translation>
    </message>
    <message>
        <source>femtosecond</source>
        <translatorcomment>CLDR: フェムト秒</translatorcomment>
        <translation>フェムト秒</translation>
    </message>
    <message>
        <source>attosecond</source>
        <translatorcomment>CLDR: アト秒</translatorcomment>
        <translation>アト秒</translation>
    </message>
    <message>
        <source>zeptosecond</source>
        <translatorcomment>CLDR: ゼプト秒</translatorcomment>
        <translation>ゼプト秒</translation>
    </message>
    <message>
        <source>yoctosecond</source>
        <translatorcomment>CLDR: ヨクト秒</translatorcomment>
        <translation>ヨクト秒</translation>
    </message>
    <message>
        <source>minute</source>
        <translatorcomment>CLDR: 分</translatorcomment>
        <translation>分</translation>
    </message>
    <message>
        <source>hour</source>
        <translatorcomment>CLDR: 時間</translatorcomment>
        <translation>時間</translation>
    </message>
    <message>
        <source>day</source>
        <translatorcomment>CLDR: 日</translatorcomment>
        <translation>日</translation>
    </message>
    <message>
        <source>week</source>
        <translatorcomment>CLDR: 週間</translatorcomment>
        <translation>週間</translation>
    </message>
    <message>
        <source>fortnight</source>
        <translation>二週間</translation>
    </message>
    <message>
        <source>month</source>
        <translatorcomment>CLDR: か月</translatorcomment>
        <translation>か月</translation>
    </message>
    <message>
        <source>month (hollow)</source>
        <translation>小の月 (29 日)</translation>
    </message>
    <message>
        <source>month (full)</source>
        <translation>大の月 (30 日)</translation>
    </message>
    <message>
        <source>year</source>
        <translatorcomment>CLDR: 年</translatorcomment>
        <translation>年</translation>
    </message>
    <message>
        <source>year (Gregorian)</source>
        <translation>年 (グレゴリオ暦)</translation>
    </message>
    <message>
        <source>year (Julian)</source>
        <translation>年 (ユリウス暦)</translation>
    </message>
    <message>
        <source>sidereal year</source>
        <translation>恒星年</translation>
    </message>
    <message>
        <source>tropical year</source>
        <translation>太陽年</translation>
    </message>
    <message>
        <source>annum</source>
        <translation>アナム</translation>
    </message>
    <message>
        <source>decade</source>
        <translatorcomment>CLDR: 十年</translatorcomment>
        <translation>十年</translation>
    </message>
    <message>
        <source>century</source>
        <translatorcomment>CLDR: 世紀</translatorcomment>
        <translation>世紀</translation>
    </message>
    <message>
        <source>century (Julian)</source>
        <translation>世紀 (ユリウス暦)</translation>
    </message>
    <message>
        <source>millenium</source>
        <translation>千年紀</translation>
    </message>
    <message>
        <source>millenium (Gregorian)</source>
        <translation>千年紀 (グレゴリオ暦)</translation>
    </message>
    <message>
        <source>millenium (Julian)</source>
        <translation>千年紀 (ユリウス暦)</translation>
    </message>
    <message>
        <source>newton meter (torque)</source>
        <translation>ニュートンメートル (トルク)</translation>
    </message>
    <message>
        <source>newton centimeter (torque)</source>
        <translation>ニュートンセンチメートル (トルク)</translation>
    </message>
    <message>
        <source>newton decameter (torque)</source>
        <translation>ニュートンデカメートル (トルク)</translation>
    </message>
    <message>
        <source>foot pound (torque)</source>
        <translation>フィートポンド (トルク)</translation>
    </message>
    <message>
        <source>inch pound (torque)</source>
        <translation>インチポンド (トルク)</translation>
    </message>
    <message>
        <source>meter kilogram (torque)</source>
        <translation>メートルキログラム (トルク)</translation>
    </message>
    <message>
        <source>centimeter kilogram (torque)</source>
        <translation>センチメートルキログラム (トルク)</translation>
    </message>
    <message>
        <source>inch ounce (torque)</source>
        <translation>インチオンス (トルク)</translation>
    </message>
    <message>
        <source>gram centimeter (torque)</source>
        <translation>グラムセンチメートル (トルク)</translation>
    </message>
    <message>
        <source>decanewton meter (torque)</source>
        <translation>デカニュートンメートル (トルク)</translation>
    </message>
    <message>
        <source>kilonewton meter (torque)</source>
        <translation>キロニュートンメートル (トルク)</translation>
    </message>
    <message>
        <source>meganewton meter (torque)</source>
        <translation>メガニュートンメートル (トルク)</translation>
    </message>
    <message>
        <source>kip foot (torque)</source>
        <translation>キップフィート (トルク)</translation>
    </message>
    <message>
        <source>kilogram force meter (torque)</source>
        <translation>重量キログラムメートル (トルク)</translation>
    </message>
    <message>
        <source>ton force meter (torque)</source>
        <translation>重量トンメートル (トルク)</translation>
    </message>
    <message>
        <source>pound force foot (torque)</source>
        <translation>重量ポンドフィート (トルク)</translation>
    </message>
    <message>
        <source>poise</source>
        <translation>ポアズ</translation>
    </message>
    <message>
        <source>centipoise</source>
        <translation>センチポアズ</translation>
    </message>
    <message>
        <source>pascal second</source>
        <translatorcomment>CLDR: パスカル⋅秒</translatorcomment>
        <translation>パスカル⋅秒</translation>
    </message>
    <message>
        <source>pound mass per foot second</source>
        <translation>ポンド毎フィート毎秒</translation>
    </message>
    <message>
        <source>pound mass per foot hour</source>
        <translation>ポンド毎フィート毎時</translation>
    </message>
    <message>
        <source>stoke</source>
        <translation>ストークス</translation>
    </message>
    <message>
        <source>centistoke</source>
        <translation>センチストークス</translation>
    </message>
    <message>
        <source>meter per second squared</source>
        <translatorcomment>CLDR: メートル毎秒毎秒</translatorcomment>
        <translation>メートル毎秒毎秒</translation>
    </message>
    <message>
        <source>foot per second squared</source>
        <translation>フィート毎秒毎秒</translation>
    </message>
    <message>
        <source>survey foot per second squared</source>
        <translation>測量フィート毎秒毎秒</translation>
    </message>
    <message>
        <source>volt</source>
        <translatorcomment>CLDR: ボルト</translatorcomment>
        <translation>ボルト</translation>
    </message>
    <message>
        <source>kilovolt</source>
        <translatorcomment>CLDR: キロボルト</translatorcomment>
        <translation>キロボルト</translation>
    </message>
    <message>
        <source>microvolt</source>
        <translatorcomment>CLDR: マイクロボルト</translatorcomment>
        <translation>マイクロボルト</translation>
    </message>
    <message>
        <source>millivolt</source>
        <translatorcomment>CLDR: ミリボルト</translatorcomment>
        <translation>ミリボルト</translation>
    </message>
    <message>
        <source>volt (electrical potential)</source>
        <translation>ボルト (電位)</translation>
    </message>
    <message>
        <source>abvolt</source>
        <translation>アブボルト</translation>
    </message>
    <message>
        <source>statvolt</source>
        <translation>スタットボルト</translation>
    </message>
    <message>
        <source>candela</source>
        <translatorcomment>CLDR: カンデラ</translatorcomment>
        <translation>カンデラ</translation>
    </message>
    <message>
        <source>lumen per steradian</source>
        <translation>ルーメン毎ステラジアン</translation>
    </message>
    <message>
        <source>candlepower</source>
        <translation>キャンドルパワー</translation>
    </message>
    <message>
        <source>Lux (Illuminance)</source>
        <translation>ルクス (照度)</translation>
    </message>
    <message>
        <source>footcandle</source>
        <translation>フートカンデラ</translation>
    </message>
    <message>
        <source>lumen second</source>
        <translatorcomment>CLDR: ルーメン⋅秒</translatorcomment>
        <translation>ルーメン⋅秒</translation>
    </message>
    <message>
        <source>talbots</source>
        <translation>タルボット</translation>
    </message>
    <message>
        <source>luminous power</source>
        <translation>光出力</translation>
    </message>
    <message>
        <source>lumen</source>
        <translatorcomment>CLDR: ルーメン</translatorcomment>
        <translation>ルーメン</translation>
    </message>
    <message>
        <source>candela per square meter</source>
        <translatorcomment>CLDR: カンデラ/平方メートル</translatorcomment>
        <translation>カンデラ/平方メートル</translation>
    </message>
    <message>
        <source>foot lambert</source>
        <translation>フートランバート</translation>
    </message>
    <message>
        <source>candela per square foot</source>
        <translatorcomment>CLDR: カンデラ毎平方フィート</translatorcomment>
        <translation>カンデラ毎平方フィート</translation>
    </message>
    <message>
        <source>lux (emittance)</source>
        <translation>ルクス (光束発散度)</translation>
    </message>
    <message>
        <source>lumen per watt</source>
        <translatorcomment>CLDR: ルーメン毎ワット</translatorcomment>
        <translation>ルーメン毎ワット</translation>
    </message>
    <message>
        <source>pascal per meter</source>
        <translatorcomment>CLDR: パスカル/メートル</translatorcomment>
        <translation>パスカル/メートル</translation>
    </message>
    <message>
        <source>inch of water per 100foot</source>
        <translation>インチ水柱毎 100 フィート</translation>
    </message>
    <message>
        <source>foot of water per 100foot</source>
        <translation>フィート水柱毎 100 フィート</translation>
    </message>
    <message>
        <source>inch of mercury per 100foot</source>
        <translation>インチ水銀柱毎 100 フィート</translation>
    </message>
    <message>
        <source>millimeter of mercury per 100foot</source>
        <translation>ミリメートル水銀柱毎 100 フィート</translation>
    </message>
    <message>
        <source>newton meter per degree</source>
        <translatorcomment>CLDR: ニュートンメートル毎度</translatorcomment>
        <translation>ニュートンメートル毎度</translation>
    </message>
    <message>
        <source>kip foot per degree</source>
        <translation>キップフィート毎度</translation>
    </message>
    <message>
        <source>kilonewton meter per degree</source>
        <translatorcomment>CLDR: キロニュートンメートル毎度</translatorcomment>
        <translation>キロニュートンメートル毎度</translation>
    </message>
    <message>
        <source>newton meter per degree per meter</source>
        <translation>ニュートンメートル毎度毎メートル</translation>
    </message>
    <message>
        <source>kip foot per degree per foot</source>
        <translation>キップフィート毎度毎フィート</translation>
    </message>
    <message>
        <source>kilonewton meter per degree per meter</source>
        <translation>キロニュートンメートル毎度毎メートル</translation>
    </message>
    <message>
        <source>watt per square meter kelvin</source>
        <translation>ワット毎平方メートル毎ケルビン</translation>
    </message>
    <message>
        <source>british thermal unit per hour square foot fahrenheit</source>
        <translation>英国熱量単位毎時毎平方フィート毎華氏度</translation>
    </message>
    <message>
        <source>cubic meter per second square meter</source>
        <translation>立方メートル毎秒毎平方メートル</translation>
    </message>
    <message>
        <source>cubic foot per minute square foot</source>
        <translation>立方フィート毎分毎平方フィート</translation>
    </message>
    <message>
        <source>liter per second square meter</source>
        <translation>リットル毎秒毎平方メートル</translation>
    </message>
    <message>
        <source>cubic meter per second cubic meter</source>
        <translation>立方メートル毎秒毎立方メートル</translation>
    </message>
    <message>
        <source>cubic foot per minute cubic foot</source>
        <translation>立方フィート毎分毎立方フィート</translation>
    </message>
    <message>
        <source>liter per second cubic meter</source>
        <translation>リットル毎秒毎立方メートル</translation>
    </message>
    <message>
        <source>cubic meter per second watt</source>
        <translation>立方メートル毎秒毎ワット</translation>
    </message>
    <message>
        <source>cubic foot per minute ton of refrigeration</source>
        <translation>立方フィート毎分毎冷凍トン</translation>
    </message>
    <message>
        <source>liter per second kilowatt</source>
        <translation>リットル毎秒毎キロワット</translation>
    </message>
    <message>
        <source>square meter per watt</source>
        <translatorcomment>CLDR: 平方メートル毎ワット</translatorcomment>
        <translation>平方メートル毎ワット</translation>
    </message>
    <message>
        <source>square foot per ton of refrigeration</source>
        <translation>平方フィート毎冷凍トン</translation>
    </message>
    <message>
        <source>square meter per kilowatt</source>
        <translatorcomment>CLDR: 平方メートル毎キロワット</translatorcomment>
        <translation>平方メートル毎キロワット</translation>
    </message>
    <message>
        <source>square foot per thousand british thermal unit per hour</source>
        <translation>平方フィート毎千英国熱量単位毎時</translation>
    </message>
    <message>
        <source>square second per meter kilogram</source>
        <translation>二乗秒毎メートル毎キログラム</translation>
    </message>
    <message>
        <source>inverse kilonewton</source>
        <translation>毎キロニュートン</translation>
    </message>
    <message>
        <source>inverse kip</source>
        <translation>毎キップ</translation>
    </message>
    <message>
        <source>inverse fahrenheit</source>
        <translation>毎華氏度</translation>
    </message>
    <message>
        <source>inverse celsius</source>
        <translation>毎摂氏度</translation>
    </message>
    <message>
        <source>micrometer per meter celsius</source>
        <translation>マイクロメートル毎メートル毎摂氏度</translation>
    </message>
    <message>
        <source>microinch per inch fahrenheit</source>
        <translation>マイクロインチ毎インチ毎華氏度</translation>
    </message>
    <message>
        <source>oersted</source>
        <translation>エルステッド</translation>
    </message>
    <message>
        <source>Ampere per meter</source>
        <translatorcomment>CLDR: アンペア/メートル</translatorcomment>
        <translation>アンペア/メートル</translation>
    </message>
    <message>
        <source>watt per meter kelvin</source>
        <translation>ワット毎メートル毎ケルビン</translation>
    </message>
    <message>
        <source>watt per meter celsius</source>
        <translation>ワット毎メートル毎摂氏度</translation>
    </message>
    <message>
        <source>newton per second celsius</source>
        <translation>ニュートン毎秒毎摂氏度</translation>
    </message>
    <message>
        <source>dyne per second celsius</source>
        <translation>ダイン毎秒毎摂氏度</translation>
    </message>
    <message>
        <source>BTU inch per square foot hour fahrenheit</source>
        <translation>BTU インチ毎平方フィート毎時毎華氏度</translation>
    </message>
    <message>
        <source>BTU per inch second fahrenheit</source>
        <translation>BTU 毎インチ毎秒毎華氏度</translation>
    </message>
    <message>
        <source>BTU per foot second fahrenheit</source>
        <translation>BTU 毎フィート毎秒毎華氏度</translation>
    </message>
    <message>
        <source>BTU per foot hour fahrenheit</source>
        <translation>BTU 毎フィート毎時毎華氏度</translation>
    </message>
    <message>
        <source>joule per gram celsius</source>
        <translation>ジュール毎グラム毎摂氏度</translation>
    </message>
    <message>
        <source>joule per kilogram celsius</source>
        <translation>ジュール毎キログラム毎摂氏度</translation>
    </message>
    <message>
        <source>square millimeter per square second celsius</source>
        <translation>平方ミリメートル毎二乗秒毎摂氏度</translation>
    </message>
    <message>
        <source>erg per gram celsius</source>
        <translation>エルグ毎グラム毎摂氏度</translation>
    </message>
    <message>
        <source>square micrometer per square second celsius</source>
        <translation>平方マイクロメートル毎二乗秒毎摂氏度</translation>
    </message>
    <message>
        <source>BTU per pound fahrenheit</source>
        <translation>BTU 毎ポンド毎華氏度</translation>
    </message>
    <message>
        <source>nanogram per pascal second square meter</source>
        <translation>ナノグラム毎パスカル毎秒毎平方メートル</translation>
    </message>
    <message>
        <source>grain per square foot hour inches mercury</source>
        <translation>グレーン毎平方フィート毎時毎インチ水銀柱</translation>
    </message>
    <message>
        <source>ohm meter</source>
        <translatorcomment>CLDR: オーム⋅メートル</translatorcomment>
        <translation>オーム⋅メートル</translation>
    </message>
    <message>
        <source>joule per gram</source>
        <translatorcomment>CLDR: ジュール/グラム</translatorcomment>
        <translation>ジュール/グラム</translation>
    </message>
    <message>
        <source>joule per kilogram</source>
        <translatorcomment>CLDR: ジュール/キログラム</translatorcomment>
        <translation>ジュール/キログラム</translation>
    </message>
    <message>
        <source>BTU per pound</source>
        <translation>BTU 毎ポンド</translation>
    </message>
</context>
</TS>
