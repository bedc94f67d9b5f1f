package kxtest;

import static org.junit.Assert.assertEquals;

import orvane.str.diskarray.KXUnitParam;
import org.junit.Test;

/** Results that cannot be built: a field that cannot be set, or is of another type. */
public class UnitFailingConversionTest extends BridgeTest {
    @Test
    public void unitTableStopsAtTheFirstRecordLeftWithAnErrorPending() {
        int before = KXUnitParam.made;
        Throwable t = thrown(() -> jni.KX_GetUnitParamTable(4));
        assertEquals("the JVM's own error, not a DiskArrayException", NoSuchFieldError.class, t.getClass());
        assertEquals("records after the failing one are not converted", 1, KXUnitParam.made - before);
    }

    @Test
    public void aConnectorTableThatCannotBeStoredFailsTheWholeCondition() {
        assertEquals(2817, code(() -> jni.KX_GetUnitCondition("u", null, 0)));
    }
}
