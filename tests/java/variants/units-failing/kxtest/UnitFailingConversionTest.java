package kxtest;

import static org.junit.Assert.assertEquals;

import orvane.str.diskarray.CacheStatus;
import orvane.str.diskarray.KXUnitParam;
import org.junit.Test;

/** Results that cannot be built: a field that cannot be set, a constructor that throws. */
public class UnitFailingConversionTest extends BridgeTest {
    @Test
    public void unitTableStopsAtTheFirstRecordLeftWithAnErrorPending() {
        Throwable t = thrown(() -> jni.KX_GetUnitParamTable(4));
        assertEquals("the JVM's own error, not a DiskArrayException", NoSuchFieldError.class, t.getClass());
        assertEquals("records after the failing one are not converted", 1, KXUnitParam.made);
    }

    @Test
    public void anElementOrTheConnectorTableThatCannotBeBuiltFailsTheWholeCondition() {
        CacheStatus.failAt = 40;  // element 7 of cache2
        assertEquals(2817, code(() -> jni.KX_GetUnitCondition("u", null, 0)));
        assertEquals(40, CacheStatus.made);
        CacheStatus.made = CacheStatus.failAt = 0;
        assertEquals("connector is no byte[][][]", 2817, code(() -> jni.KX_GetUnitCondition("u", null, 0)));
        assertEquals("both cache arrays were built first", 64, CacheStatus.made);
    }
}
